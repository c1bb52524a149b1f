#pragma once

#include "screens/InhMain.h"
#include "windows/forms/FormWindow.h"
#include "windows/platform/QtVideoPlayer.h"

namespace qismora {

/// The window of the main menu. Closing it ends the program.
class InhMainWindow : public FormWindow {
 public:
  InhMainWindow(CaseRecord& record, ShellRecord& shell, ShellOutside& outside, QtVideoPlayer& player);
  ~InhMainWindow() override;

  InhMain& Form() { return form_; }

 protected:
  void TellSize(bool maximized, int width, int height) override;
  void changeEvent(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void BuildMenuBar();
  QWidget* Head();
  QWidget* Middle(QtVideoPlayer& player);
  QWidget* Menu();
  QWidget* Side(QtVideoPlayer& player);
  QWidget* Foot();
  QWidget* Pictures();
  QWidget* SessionNumber();
  void ShowBanner();
  void ForceSize();

  InhMain form_;
  QWidget* banners_[2] = {};
  QSize refused_;
  bool painted_ = false;
};

}  // namespace qismora
