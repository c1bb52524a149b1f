#pragma once

#include <QString>
#include <span>

namespace qismora {

/// A file that the build has made beside the program, and the SHA-256 of its content in hexadecimal.
struct BuiltFile {
  const char* Name;
  const char* Sha256;
};

/// The videos, the plugin that plays them and the one that prints. The build writes this list when it has
/// made them.
extern const std::span<const BuiltFile> builtFiles;

/// Whether a file has the content that the build gave to the file of its name. To play or to load another
/// content, such as that of a damaged disk, could crash the program.
bool IsAsBuilt(const QString& path);

}  // namespace qismora
