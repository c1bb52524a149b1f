#pragma once

#include <string>
#include <vector>

#include "base/Array.h"
#include "base/Numbers.h"
#include "base/Ports.h"
#include "case/CaseRecord.h"
#include "shell/ShellRecord.h"

namespace qismora {

/// Records the start of the session and takes its number from the log: the number of the last line that can
/// be read, plus 1.
void StartSession(ShellRecord& shell, ShellPorts& ports);

/// The exit routine: saves how many times a case was loaded, adds the session's line to the log, and ends the
/// program. Only its first call has an effect. A line that cannot be written is lost.
void Inhp(ShellRecord& shell, const CaseRecord& c, ShellPorts& ports);

/// A line of the log without its line break.
std::string SessionLine(Integer number, const DateTime& start, const DateTime& end, Long seconds);

/// The whole seconds from one date to the other. Beyond the range of a Long it throws
/// Failure(Overflow).
Long SecondsBetween(const DateTime& start, const DateTime& end);

/// One session of the log.
struct SessionRow {
  Integer Number;
  std::string Start;
  std::string End;
  Long Length;
};

/// The sessions of the log, oldest first; the element 0 stays empty.
struct SessionTable {
  int Count = 0;
  std::vector<SessionRow> Rows{1};
  Long TotalSeconds;
};

/// Reads the log; the fields of a line have fixed positions. Throws Failure(SubscriptOutOfRange) if there are
/// more lines than MostSessions, Failure(FileNotFound) without a log.
SessionTable ReadSessionLog(ShellPorts& ports);
inline constexpr int MostSessions = 5000;

/// The total of all lengths in days, hours, minutes and seconds.
std::string TotalTimeText(Long totalSeconds);

}  // namespace qismora
