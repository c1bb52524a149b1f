#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

namespace qismora::divide {

struct CannotRead : std::system_error {
  using std::system_error::system_error;
};
struct CannotWrite : std::system_error {
  using std::system_error::system_error;
};

/// A file or standard input, read from its beginning to its end. A failure to open or read it throws
/// CannotRead.
class Source {
 public:
  /// "-" is standard input. The function is called before each read that has to wait for data, so that
  /// answers can be written out first.
  Source(const std::string& path, std::function<void()> beforeWaiting);
  ~Source();
  Source(const Source&) = delete;
  Source& operator=(const Source&) = delete;

  /// Reads what is available, up to this number of bytes. Returns how many; 0 at the end.
  std::size_t Read(char* to, std::size_t most);

  const std::string& Path() const { return path_; }
  /// The name in messages.
  const std::string& Name() const { return name_; }
  std::uint64_t BytesRead() const { return bytesRead_; }
  /// The length in bytes, 0 if it is not known.
  std::uint64_t Length() const { return length_; }

 private:
  std::string path_;
  std::string name_;
  std::function<void()> beforeWaiting_;
  int descriptor_;
  std::uint64_t bytesRead_ = 0;
  std::uint64_t length_ = 0;
};

/// The part of a source that is in memory. New bytes are appended at its end, and used ones removed from its
/// beginning.
class InputBuffer {
 public:
  explicit InputBuffer(Source& source) : source_(source) {}

  std::string_view Text() const { return {buffer_.data() + begin_, end_ - begin_}; }
  /// Appends more of the source; false at its end.
  bool Fill();
  /// Removes bytes from the beginning.
  void Skip(std::size_t bytes) { begin_ += bytes; }

 private:
  Source& source_;
  std::vector<char> buffer_;
  std::size_t begin_ = 0;
  std::size_t end_ = 0;
};

/// Standard output with a buffer. A failure to write throws CannotWrite.
class Sink {
 public:
  /// Texts are appended here. FlushIfFull is called after each answer.
  std::string Buffer;

  void FlushIfFull() {
    if (Buffer.size() >= full) Flush();
  }
  void Flush();

 private:
  static constexpr std::size_t full = 65536;
};

/// Whether standard output and standard error are terminals.
bool OutputIsTerminal();
bool ErrorsGoToTerminal();

}  // namespace qismora::divide
