#pragma once

#include <QMainWindow>

#include "screens/Zummy.h"
#include "windows/widgets/FormHolder.h"

namespace qismora {

/// The window of the documents form. Closing it ends the program; Back hides it.
class ZummyWindow : public FormHolder<Zummy>, public QMainWindow {
 public:
  ZummyWindow(CaseRecord& record, ShellRecord& shell, ShellPorts& ports);

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  QWidget* Buttons();
  QWidget* Holders();
};

}  // namespace qismora
