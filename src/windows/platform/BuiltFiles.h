#pragma once

#include <QFunctionPointer>
#include <QStringList>
#include <span>

namespace qismora {

/// A file that the build has made next to the program, and the SHA-256 of its content in hexadecimal.
struct BuiltFile {
  const char* Name;
  const char* Sha256;
};

/// The videos, the plugin that plays them and the one that prints. The build writes this list when it has
/// made them.
extern const std::span<const BuiltFile> builtFiles;

/// Whether a file has the content that the build has made. Playing or loading a damaged file could crash the
/// program.
bool IsAsBuilt(const QString& path);

/// Loads a plugin of the program, which stays loaded, and finds its function. Null if the plugin is in none
/// of the directories, or is not as built.
QFunctionPointer LoadPlugin(const QStringList& directories, const char* plugin, const char* function);

}  // namespace qismora
