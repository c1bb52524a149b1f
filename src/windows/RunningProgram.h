#pragma once

#include "windows/ProgramWindows.h"
#include "windows/platform/QtShellPorts.h"

namespace qismora {

/// The program as it runs: its ports and its windows, which depend on them.
struct RunningProgram {
  /// Takes the directory of the program's binary.
  explicit RunningProgram(const QString& binaries) : Folders(binaries) {}

  SystemClock Time;
  QtProgram Running;
  QtMessageBoxes Boxes{Running};
  ProgramFolders Folders;
  QtFileDialogs Dialogs{Folders};
  QtSettings Store;
  QtDocumentViewer Viewer;
  QtVideoPlayer Player{Folders.Plugins()};
  SystemMemory Memory;
  ShellPorts Ports{{Time, Boxes, Dialogs, Store, Folders}, Viewer, Player, Memory, Running};
  ProgramWindows Windows{Ports, Player};
};

}  // namespace qismora
