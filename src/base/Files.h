#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/Failure.h"
#include "base/Numbers.h"

namespace qismora {

// Only ordinary files are read and written. A link, a directory, a pipe or a device in the place of a file is
// a failure. So nothing is written through a link, and the program never waits for a pipe or a device.

/// A file that cannot be read or written, with the reason for the user: "the disk is full".
class FileFailure : public Failure {
 public:
  FileFailure(int number, std::string reason) : Failure(number), Reason(std::move(reason)) {}
  /// The failure for an error number (errno).
  explicit FileFailure(int error);

  std::string Reason;
};

/// An open file descriptor. The destructor closes it.
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

/// An ordinary file that is open for reading. Throws Failure(FileNotFound) for a missing file.
class InputFile {
 public:
  explicit InputFile(const std::string& path);

  /// Reads this many bytes; fewer only at the end of the file. Returns how many.
  std::size_t Read(char* to, std::size_t size);

 private:
  Descriptor file_;
};

/// Whether the path is that of an ordinary file, also through a link.
bool FileExists(const std::string& path);

/// The length in bytes. Throws Failure(FileNotFound) for a missing file.
Long FileLength(const std::string& path);

/// Adds a line to the end of an ordinary file that has no second hard link; a missing file is created.
/// Programs that add to the same file at the same time do not break each other's lines. A line that is
/// incomplete because the disk is full is removed; if that fails, it is ended before the next line.
void AppendLine(const std::string& path, std::string_view line);

/// Whether the text is a name within a directory: without a separator of any platform, not "." or "..".
bool IsFileName(std::string_view name);

/// The names of everything in the directory except directories, in any order.
std::vector<std::string> ListFiles(const std::string& folder);

/// The target of the path after all symbolic links, whether or not there is a file.
std::string FollowLinks(std::string path);

/// Writes all bytes to an open file.
void WriteAll(int file, std::string_view bytes);

/// Synchronizes a closed file or a directory to the disk, as far as the system can.
void SyncToDisk(const std::string& path);

/// The reason why an object is not an ordinary file; null for an ordinary file.
const char* WhyNotOrdinary(unsigned mode);

}  // namespace qismora
