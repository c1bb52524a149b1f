#pragma once

#include <string>

#include "base/Numbers.h"
#include "base/Ports.h"

namespace qismora {

/// The animation of the main menu: two videos that alternate. A file is recognized by its length in bytes; a
/// file of another length is never played. It is only decoration.
class Videos {
 public:
  explicit Videos(ShellPorts& ports) : ports_(ports) {}

  /// Throws Failure(FileNotFound) for a missing file; CurrentVideoPath has the path already.
  void PlayFirstVideo();
  void PlaySecondVideo();

  /// Changes to the other of the two.
  void PlayOther();
  /// Starts the current one again.
  void PlayAgain();

  std::string CurrentVideoPath;
  Long CurrentVideoLength;

 private:
  void Play(const char* fileName, int expectedLength);
  void Start();

  ShellPorts& ports_;
};

inline constexpr int FirstVideoLength = 1069056;
inline constexpr int SecondVideoLength = 941056;

}  // namespace qismora
