#include <QApplication>
#include <cstdio>

#include "screens/windows/OutlinedStyle.h"
#include "screens/windows/ProgramWindows.h"
#include "screens/windows/ShellPorts.h"

using namespace qismora;

int main(int argc, char** argv) {
  if (!qEnvironmentVariableIsSet("DISPLAY") && !qEnvironmentVariableIsSet("WAYLAND_DISPLAY") &&
      !qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
    std::fputs("qismora: there is no display to open a window on; start it from a desktop session.\n",
               stderr);
    return 1;
  }
  QApplication::setStyle(new OutlinedStyle);
  QApplication application(argc, argv);

  SystemClock clock;
  QtMessageBoxes boxes;
  ProgramFolders folders(QApplication::applicationDirPath());
  QtSaveDialog dialog(folders);
  QtSettings settings;
  QtDocumentViewer viewer;
  QtVideoPlayer player(folders.Plugins());
  SystemMemory memory;
  QtProgram program;
  ShellOutside outside{{clock, boxes, dialog, settings, folders}, viewer, player, memory, program};

  ProgramWindows windows(outside, player);
  windows.ShowMainMenu();
  return QApplication::exec();
}
