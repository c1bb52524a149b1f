#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/Failure.h"
#include "base/Numbers.h"

namespace qismora {

// Only ordinary files are read and written. A link, a folder, a pipe or a device is a failure where a file of
// the program should be: nothing is written through a link, and no pipe or device is waited for.

/// A file that cannot be read or written, with the reason in words for the user: "the disk is full".
class FileFailure : public Failure {
 public:
  FileFailure(int number, std::string reason) : Failure(number), Reason(std::move(reason)) {}
  /// By the error number of the system.
  explicit FileFailure(int error);

  std::string Reason;
};

/// An open file of the system, which closes with the object.
class Descriptor {
 public:
  explicit Descriptor(int file = -1) : file_(file) {}
  ~Descriptor();
  Descriptor(Descriptor&& other) noexcept : file_(std::exchange(other.file_, -1)) {}
  Descriptor& operator=(Descriptor&& other) noexcept {
    std::swap(file_, other.file_);
    return *this;
  }

  int Get() const { return file_; }

 private:
  int file_;
};

/// An ordinary file that is open for reading. A missing file is the failure 53.
class InputFile {
 public:
  explicit InputFile(const std::string& path);

  /// Reads up to so many bytes; fewer only at the end of the file.
  std::size_t Read(char* to, std::size_t size);

 private:
  Descriptor file_;
};

/// The whole content of an ordinary file.
std::string ReadWholeFile(const std::string& path);

/// Whether a file of this path can be found, also through a link.
bool FileExists(const std::string& path);

/// The length in bytes. A missing file is the failure 53.
Long FileLength(const std::string& path);

/// Adds a line to the end of an ordinary file without a second name, which is made where there is none.
/// Programs that add to the same file at the same moment do not tear each other's lines. A line that a full
/// disk tears is taken back; where that was not possible, it is closed before the next one.
void AppendLine(const std::string& path, std::string_view line);

/// Whether the text names a file in its folder: no separator of any platform, not "." or "..".
bool IsFileName(std::string_view name);

/// The names of all that lies in the folder and is no folder itself, in no order.
std::vector<std::string> ListFiles(const std::string& folder);

/// The path that the path leads to through symbolic links, whether or not there is a file.
std::string FollowLinks(std::string path);

/// Writes all bytes to an open file.
void WriteAll(int file, std::string_view bytes);

/// Has a closed file or a folder written through to the disk, as far as the system can.
void SyncToDisk(const std::string& path);

/// Why what the system has found under a name is no ordinary file; null for an ordinary file.
const char* WhyNotOrdinary(unsigned mode);

}  // namespace qismora
