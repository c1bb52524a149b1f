#pragma once

#include "screens/QurLaws.h"
#include "windows/forms/FormWindow.h"

namespace qismora {

/// The window of the law pages. It owns its form; closing it destroys both.
class QurLawsWindow : public FormWindow {
 public:
  QurLawsWindow(const ShellRecord& shell, MessageBoxes& boxes);
  ~QurLawsWindow() override;

  QurLaws& Form() { return form_; }

 protected:
  void TellSize(bool maximized, int width, int height) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  QWidget* Heading();
  QWidget* Title();
  QWidget* Page();

  QurLaws form_;
  bool unloading_ = false;
};

}  // namespace qismora
