#pragma once

#include <QWidget>

#include "screens/CaseStudy.h"
#include "windows/widgets/Binder.h"

namespace qismora {

/// Clear, Aul and Radd, full report. The buttons that the menu stands for are there and stay hidden.
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
