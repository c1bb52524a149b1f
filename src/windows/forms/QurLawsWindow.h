#pragma once

#include "screens/QurLaws.h"
#include "windows/widgets/FormHolder.h"
#include "windows/widgets/FormWindow.h"

namespace qismora {

/// The window of the law pages. Closing it destroys it with its form.
class QurLawsWindow : public FormHolder<QurLaws>, public FormWindow {
 public:
  QurLawsWindow(const ShellRecord& shell, MessageBoxes& boxes);

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  QWidget* MakeHeading();
  QWidget* Title();
  QWidget* Page();

  bool unloading_ = false;
};

}  // namespace qismora
