#pragma once

#include "windows/forms/ProgramWindows.h"
#include "windows/platform/ShellPorts.h"

namespace qismora {

/// The program as it runs: its windows and the real ports to the outside world.
struct RunningProgram {
  /// Takes the directory of the program's binary.
  explicit RunningProgram(const QString& binaries) : Places(binaries) {}

  SystemClock Time;
  QtProgram Running;
  QtMessageBoxes Boxes{Running};
  ProgramFolders Places;
  QtSaveDialog Dialog{Places};
  QtSettings Store;
  QtDocumentViewer Viewer;
  QtVideoPlayer Player{Places.Plugins()};
  SystemMemory Memory;
  ShellOutside Outside{{Time, Boxes, Dialog, Store, Places}, Viewer, Player, Memory, Running};
  ProgramWindows Windows{Outside, Player};
};

}  // namespace qismora
