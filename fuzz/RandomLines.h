#pragma once

#include <deque>
#include <random>
#include <string>

namespace qismora::testing {

/// A random line of a script: a text typed into a box, a command, or an answer to a box that may come. Most
/// boxes take a likely count, so that cases are played through; the rest take odd texts.
class RandomLines {
 public:
  explicit RandomLines(std::uint64_t seed) : random_(seed) {}

  std::string Next();
  /// A number from 0 up to but not including the count.
  std::size_t Below(std::size_t count) { return static_cast<std::size_t>(random_() % count); }

 private:
  std::string Typed(int box);
  std::string Estate();
  std::string Noise();
  std::string Numbers();

  std::mt19937_64 random_;
  std::deque<std::string> next_;
};

}  // namespace qismora::testing
