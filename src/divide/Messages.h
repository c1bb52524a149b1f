#pragma once

#include <chrono>
#include <cstdint>
#include <string>
#include <string_view>

#include "divide/Streams.h"

namespace qismora::divide {

/// The messages on standard error: faults, and the progress.
class Messages {
 public:
  /// Progress is shown if standard error is a terminal and standard output is not.
  explicit Messages(bool quiet);
  ~Messages() { ClearProgress(); }
  Messages(const Messages&) = delete;
  Messages& operator=(const Messages&) = delete;

  /// "qismora-divide: SENTENCE". Control characters are escaped.
  void Print(std::string_view sentence);
  /// "qismora-divide: PLACE:LINE: SENTENCE", without the line if it is 0.
  void Print(std::string_view place, std::int64_t line, std::string_view sentence);

  /// Called for each family. The clock is read only now and then.
  void Progress(const Source& source) {
    ++families_;
    if (showsProgress_ && families_ % 256 == 0) ShowProgress(source);
  }

 private:
  using Clock = std::chrono::steady_clock;

  void ShowProgress(const Source& source);
  void ClearProgress();

  bool showsProgress_;
  bool progressShown_ = false;
  std::int64_t families_ = 0;
  Clock::time_point start_ = Clock::now();
  Clock::time_point shown_ = start_;
};

}  // namespace qismora::divide
