#pragma once

#include <QMainWindow>

#include "screens/Session.h"
#include "windows/widgets/Binder.h"
#include "windows/widgets/FormHolder.h"

class QTableWidget;

namespace qismora {

/// The window of the session log.
class SessionWindow : public FormHolder<Session>, public QMainWindow {
 public:
  explicit SessionWindow(ShellPorts& ports);

 private:
  QWidget* Head();
  QTableWidget* MakeGrid();
  QWidget* Selected();
  QWidget* Total();
  void FillGrid();

  Binder binder_;
  QTableWidget* grid_ = nullptr;
};

}  // namespace qismora
