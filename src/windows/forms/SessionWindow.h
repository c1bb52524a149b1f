#pragma once

#include <QMainWindow>

#include "screens/Session.h"
#include "windows/widgets/Binder.h"

class QTableWidget;

namespace qismora {

/// The window of the session log.
class SessionWindow : public QMainWindow {
 public:
  explicit SessionWindow(ShellOutside& outside);
  ~SessionWindow() override;

  Session& Form() { return form_; }

 private:
  QWidget* Head();
  QTableWidget* MakeGrid();
  QWidget* Selected();
  QWidget* Total();
  void FillGrid();

  Session form_;
  Binder binder_;
  QTableWidget* grid_ = nullptr;
};

}  // namespace qismora
