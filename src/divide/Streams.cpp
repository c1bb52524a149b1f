#include "divide/Streams.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <utility>

namespace qismora::divide {

Source::Source(const std::string& path, std::function<void()> beforeWaiting)
    : path_(path),
      name_(path == "-" ? "standard input" : path),
      beforeWaiting_(std::move(beforeWaiting)),
      descriptor_(path == "-" ? STDIN_FILENO : open(path.c_str(), O_RDONLY | O_CLOEXEC)) {
  if (descriptor_ < 0) throw CannotRead(errno, std::generic_category(), name_);
  struct stat status {};
  if (fstat(descriptor_, &status) == 0 && S_ISREG(status.st_mode)) {
    length_ = static_cast<std::uint64_t>(status.st_size);
  }
}

Source::~Source() {
  if (descriptor_ != STDIN_FILENO) close(descriptor_);
}

std::size_t Source::Read(char* to, std::size_t most) {
  pollfd waiting = {descriptor_, POLLIN, 0};
  if (poll(&waiting, 1, 0) == 0) beforeWaiting_();
  ssize_t bytes = 0;
  do {
    bytes = read(descriptor_, to, most);
  } while (bytes < 0 && errno == EINTR);
  if (bytes < 0) throw CannotRead(errno, std::generic_category(), name_);
  bytesRead_ += static_cast<std::uint64_t>(bytes);
  return static_cast<std::size_t>(bytes);
}

bool InputBuffer::Fill() {
  constexpr std::size_t piece = 65536;
  if (begin_ > 0) {
    std::copy(buffer_.data() + begin_, buffer_.data() + end_, buffer_.data());
    end_ -= begin_;
    begin_ = 0;
  }
  if (buffer_.size() < end_ + piece) buffer_.resize(end_ + piece);
  const std::size_t bytes = source_.Read(buffer_.data() + end_, piece);
  end_ += bytes;
  return bytes > 0;
}

void Sink::Flush() {
  std::string_view left = Buffer;
  while (!left.empty()) {
    const ssize_t bytes = write(STDOUT_FILENO, left.data(), left.size());
    if (bytes < 0 && errno == EINTR) continue;
    if (bytes < 0) {
      throw CannotWrite(errno, std::generic_category(), "standard output");
    }
    left.remove_prefix(static_cast<std::size_t>(bytes));
  }
  Buffer.clear();
}

bool OutputIsTerminal() { return isatty(STDOUT_FILENO) == 1; }
bool ErrorsGoToTerminal() { return isatty(STDERR_FILENO) == 1; }

}  // namespace qismora::divide
