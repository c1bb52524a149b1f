#pragma once

#include "screens/InhMain.h"
#include "windows/platform/QtVideoPlayer.h"
#include "windows/widgets/FormHolder.h"
#include "windows/widgets/FormWindow.h"

namespace qismora {

/// The window of the main menu. Closing it ends the program.
class InhMainWindow : public FormHolder<InhMain>, public FormWindow {
 public:
  InhMainWindow(CaseRecord& record, ShellRecord& shell, ShellPorts& ports, QtVideoPlayer& player);

 protected:
  void changeEvent(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

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

  QWidget* banners_[2] = {};
  QSize refused_;
  bool painted_ = false;
};

}  // namespace qismora
