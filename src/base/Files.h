#pragma once

#include <fstream>
#include <string>
#include <string_view>

#include "base/Numbers.h"
#include "base/Outside.h"

namespace qismora {

/// A text file that is open for output; its content is replaced. What cannot be written is the path failure.
/// The file is closed when the object goes, with what was printed up to then.
class TextFile {
 public:
  explicit TextFile(const std::string& path);

  /// Writes the text and a line break.
  void Print(std::string_view text);
  void Close();
  /// All that was printed.
  const std::string& Content() const { return content_; }

 private:
  std::ofstream stream_;
  std::string content_;
};

/// The whole content of a file.
std::string ReadWholeFile(const std::string& path);

/// Whether a file of this path can be found.
bool FileExists(const std::string& path);

/// The length in bytes. A missing file is the failure 53.
Long FileLength(const std::string& path);

/// Adds a line to the end of a file, which is made where there is none. The line is written at once, so that
/// programs which add to the same file at the same moment do not tear each other's lines.
void AppendLine(const std::string& path, std::string_view line);

/// Whether the text names a file in its folder: no separator of any platform, not "." or "..".
bool IsFileName(std::string_view name);

/// Whether the folder holds an entry of exactly this name.
bool FolderHolds(const std::string& folder, std::string_view name);

void DeleteFile(const std::string& path);

/// Writes a whole file. An earlier one of the same name stands until the new content is complete on the disk.
void WriteSafely(Folders& places, const std::string& path, std::string_view content);

}  // namespace qismora
