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

/// A file or standard input that is read from begin to end. What cannot be opened or read throws CannotRead.
class Source {
 public:
  /// "-" is standard input. The function is called before each read that would have to wait for its data, so
  /// that answers do not lie in a buffer meanwhile.
  Source(const std::string& path, std::function<void()> beforeWaiting);
  ~Source();
  Source(const Source&) = delete;
  Source& operator=(const Source&) = delete;

  /// What is ready, at most so many bytes; 0 at the end.
  std::size_t Read(char* to, std::size_t most);

  const std::string& Path() const { return path_; }
  /// As it is named in messages.
  const std::string& Name() const { return name_; }
  std::uint64_t BytesRead() const { return bytesRead_; }
  /// The length in bytes, 0 where it is not known.
  std::uint64_t Length() const { return length_; }

 private:
  std::string path_;
  std::string name_;
  std::function<void()> beforeWaiting_;
  int descriptor_;
  std::uint64_t bytesRead_ = 0;
  std::uint64_t length_ = 0;
};

/// The part of a source that is in memory: read at its end, taken at its begin.
class Window {
 public:
  explicit Window(Source& source) : source_(source) {}

  std::string_view Text() const { return {buffer_.data() + begin_, end_ - begin_}; }
  /// Reads more behind what is there; false at the end of the source.
  bool Fill();
  /// Takes bytes from the begin.
  void Skip(std::size_t bytes) { begin_ += bytes; }

 private:
  Source& source_;
  std::vector<char> buffer_;
  std::size_t begin_ = 0;
  std::size_t end_ = 0;
};

/// Standard output with a buffer. What cannot be written throws CannotWrite.
class Sink {
 public:
  /// Texts are appended here; Wrote is called behind each answer.
  std::string Buffer;

  /// Lets the buffer go when it is full.
  void Wrote() {
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
