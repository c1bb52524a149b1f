#include "windows/platform/QtShellPorts.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <QUrl>
#include <fstream>
#include <sstream>

#include "windows/platform/Utf8.h"

namespace qismora {

namespace {

/// The first of the directories that exists, or the last.
QString FirstFolder(const QStringList& folders) {
  for (const QString& folder : folders) {
    if (QFileInfo(folder).isDir()) return QDir::cleanPath(folder);
  }
  return QDir::cleanPath(folders.last());
}

/// The figure of a line in kibibytes, converted to bytes; 0 if the file has no such line.
double FigureOf(const char* file, const std::string& name) {
  std::ifstream stream(file);
  for (std::string line; std::getline(stream, line);) {
    if (!line.starts_with(name + ":")) continue;
    double kibibytes = 0;
    std::istringstream(line.substr(name.size() + 1)) >> kibibytes;
    return kibibytes * 1024;
  }
  return 0;
}

}  // namespace

std::string ProgramFolders::Application() {
  return FromQt(FirstFolder({binaries_ + QStringLiteral("/../share/qismora"), binaries_}));
}

// The log is never written into an installed program, not even by root.
std::string ProgramFolders::Log() {
  const QString program = ToQt(Application());
  const QString log = program + QStringLiteral("/popuQism.ppl");
  const bool installed = program != QDir::cleanPath(binaries_);
  if (!installed && QFileInfo(QFileInfo::exists(log) ? log : program).isWritable()) return FromQt(program);
  const QString own =
      QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + QStringLiteral("/qismora");
  QDir().mkpath(own);
  return FromQt(own);
}

std::string ProgramFolders::Documents() {
  return FromQt(
      FirstFolder({binaries_ + QStringLiteral("/../share/qismora/documents"),
                   binaries_ + QStringLiteral("/../documents"), binaries_ + QStringLiteral("/documents")}));
}

QStringList ProgramFolders::Plugins() const {
  return {QDir::cleanPath(binaries_ + QStringLiteral("/../lib/qismora")), binaries_};
}

bool QtDocumentViewer::Open(const std::string& path) {
  return QDesktopServices::openUrl(QUrl::fromLocalFile(ToQt(path)));
}

MemoryFigures SystemMemory::Read() {
  return {FigureOf("/proc/meminfo", "MemTotal"), FigureOf("/proc/meminfo", "MemAvailable"),
          FigureOf("/proc/self/status", "VmRSS")};
}

}  // namespace qismora
