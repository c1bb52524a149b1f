#pragma once

#include <QWidget>

#include "screens/CaseStudy.h"
#include "windows/widgets/Binder.h"

namespace qismora {

/// The buttons for clear, Aul and Radd, and full report, and the hidden ones that the menu replaces.
class CommandRow : public QWidget {
 public:
  CommandRow(CaseStudy& form, Binder& binder, QWidget* parent);

 private:
  QWidget* Clear();
  QWidget* Aul();
  QWidget* FullReport();
  void AddHidden();

  CaseStudy& form_;
  Binder& binder_;
};

}  // namespace qismora
