#pragma once

#include <QStringList>

#include "windows/platform/QtPorts.h"

namespace qismora {

// The ports of the forms around the case, as the running program has them.

/// The directories of the program: beside it in a build, apart from it where it is installed.
class ProgramFolders : public SystemFolders {
 public:
  /// Takes the directory of the program's binary.
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

/// The memory as the operating system's files report it.
class SystemMemory : public MemoryMeter {
 public:
  MemoryFigures Read() override;
};

}  // namespace qismora
