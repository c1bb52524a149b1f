#pragma once

#include <QMainWindow>

#include "screens/Zummy.h"

namespace qismora {

/// The window of the documents form. Closing it ends the program; Back hides it.
class ZummyWindow : public QMainWindow {
 public:
  ZummyWindow(CaseRecord& record, ShellRecord& shell, ShellOutside& outside);

  Zummy& Form() { return form_; }

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  QWidget* Buttons();
  QWidget* Holders();

  Zummy form_;
};

}  // namespace qismora
