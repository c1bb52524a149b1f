#pragma once

#include "windows/forms/ProgramWindows.h"
#include "windows/platform/QtShellPorts.h"

namespace qismora {

/// The program as it runs: its ports and its windows, which depend on them.
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
  ShellPorts System{{Time, Boxes, Dialog, Store, Places}, Viewer, Player, Memory, Running};
  ProgramWindows Windows{System, Player};
};

}  // namespace qismora
