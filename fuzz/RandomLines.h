#pragma once

#include <deque>
#include <random>
#include <string>

namespace qismora::testing {

/// Random lines of a script: a text typed into a field, a command, or an answer to a later message box. Most
/// fields get a likely count, so that complete cases are played; the others get unusual texts.
class RandomLines {
 public:
  explicit RandomLines(std::uint64_t seed) : random_(seed) {}

  std::string Next();
  /// A number from 0 up to but not including the count.
  std::size_t Below(std::size_t count) { return static_cast<std::size_t>(random_() % count); }

 private:
  std::string Typed(int field);
  std::string Estate();
  std::string Noise();
  std::string Numbers();

  std::mt19937_64 random_;
  std::deque<std::string> next_;
};

}  // namespace qismora::testing
