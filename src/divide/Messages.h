#pragma once

#include <chrono>
#include <cstdint>
#include <string>
#include <string_view>

#include "divide/Streams.h"

namespace qismora::divide {

/// What the program says on standard error: what is wrong, and how far it is.
class Messages {
 public:
  /// Progress is shown on a terminal where the answers go elsewhere.
  explicit Messages(bool quiet);
  ~Messages() { TakeAwayProgress(); }
  Messages(const Messages&) = delete;
  Messages& operator=(const Messages&) = delete;

  /// "qismora-divide: SENTENCE". Control characters are escaped.
  void Say(std::string_view sentence);
  /// "qismora-divide: PLACE:LINE: SENTENCE"; without a line where it is 0.
  void Say(std::string_view place, std::int64_t line, std::string_view sentence);

  /// Is called for each family; the clock is looked at now and then.
  void Progress(const Source& source) {
    ++families_;
    if (showsProgress_ && families_ % 256 == 0) ShowProgress(source);
  }

 private:
  using Clock = std::chrono::steady_clock;

  void ShowProgress(const Source& source);
  void TakeAwayProgress();

  bool showsProgress_;
  bool progressStands_ = false;
  std::int64_t families_ = 0;
  Clock::time_point start_ = Clock::now();
  Clock::time_point shown_ = start_;
};

}  // namespace qismora::divide
