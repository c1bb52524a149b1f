#pragma once

#include <QStringList>

#include "windows/platform/Ports.h"

namespace qismora {

// The ports of the screens around the case as they are in the running program.

/// The folders of the program, as they lie beside it in a build, and apart from it where it is installed.
class ProgramFolders : public SystemFolders {
 public:
  /// The folder of the program's binary.
  explicit ProgramFolders(QString binaries) : binaries_(std::move(binaries)) {}

  std::string Application() override;
  std::string Log() override;
  std::string Documents() override;
  /// Where the video plugin may lie.
  QStringList Plugins() const;

 private:
  QString binaries_;
};

class QtDocumentViewer : public DocumentViewer {
 public:
  bool Open(const std::string& path) override;
};

/// The memory as the system's own files tell it.
class SystemMemory : public MemoryMeter {
 public:
  MemoryFigures Read() override;
};

}  // namespace qismora
