#pragma once

#include <QGroupBox>

#include "screens/CaseStudy.h"
#include "windows/widgets/Binder.h"

namespace qismora {

/// What lies over the result area: the name of the program, how to begin, and the way to the catalogue.
class Frame5Panel : public QGroupBox {
 public:
  Frame5Panel(CaseStudy& form, Binder& binder, QWidget* parent);
};

}  // namespace qismora
