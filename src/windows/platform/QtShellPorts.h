#pragma once

#include <QStringList>

#include "windows/platform/QtPorts.h"

namespace qismora {

// The implementations of the ports for the other forms.

/// The directories of the program: next to its binary in a build, and those of an installation.
class ProgramFolders : public SystemFolders {
 public:
  /// Takes the directory of the program's binary.
  explicit ProgramFolders(QString binaries) : binaries_(std::move(binaries)) {}

  std::string Application() override;
  std::string Log() override;
  std::string Documents() override;
  /// The directories in which the plugins may be.
  QStringList Plugins() const;

 private:
  QString binaries_;
};

class QtDocumentViewer : public DocumentViewer {
 public:
  bool Open(const std::string& path) override;
};

/// The memory figures from /proc.
class SystemMemory : public MemoryMeter {
 public:
  MemoryFigures Read() override;
};

}  // namespace qismora
