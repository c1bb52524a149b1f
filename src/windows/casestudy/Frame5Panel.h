#pragma once

#include <QGroupBox>

#include "screens/CaseStudy.h"
#include "windows/widgets/Binder.h"

namespace qismora {

/// Covers the result area: the name of the program, how to begin, and a link to the catalogue.
class Frame5Panel : public QGroupBox {
 public:
  Frame5Panel(CaseStudy& form, Binder& binder, QWidget* parent);
};

}  // namespace qismora
