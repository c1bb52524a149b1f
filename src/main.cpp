#include <QApplication>
#include <cstdio>

#include "windows/platform/RunningProgram.h"
#include "windows/style/OutlinedStyle.h"

using namespace qismora;

int main(int argc, char** argv) {
#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)
  if (!qEnvironmentVariableIsSet("DISPLAY") && !qEnvironmentVariableIsSet("WAYLAND_DISPLAY") &&
      !qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
    std::fputs("qismora: there is no display to open a window on; start it from a desktop session.\n",
               stderr);
    return 1;
  }
#endif
  QApplication::setStyle(new OutlinedStyle);
  QApplication application(argc, argv);

  RunningProgram program(QApplication::applicationDirPath());
  program.Windows.ShowMainMenu();
  return QApplication::exec();
}
