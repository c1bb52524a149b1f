#include "shell/SessionLog.h"

#include <algorithm>
#include <charconv>
#include <chrono>
#include <cmath>
#include <string_view>

#include "base/Dates.h"
#include "base/Files.h"
#include "base/NumberText.h"
#include "base/Text.h"
#include "shell/AppSettings.h"

namespace qismora {

namespace {

// A line is written in zones of 14 columns. The dates have 19 characters, so they begin in the columns 15 and
// 43, and the length in column 71. The reader cuts the line at fixed positions.
constexpr std::size_t zone = 14;
constexpr std::size_t dateWidth = 25;
constexpr std::size_t endColumn = 26;
constexpr std::size_t lengthWidth = 8;

constexpr std::size_t blockLength = 1 << 16;

std::string LogPath(ShellPorts& ports) { return Join(ports.Folders.Log(), "/popuQism.ppl"); }

void PrintZone(std::string& line, std::string_view field) {
  line.append((zone - line.size() % zone) % zone, ' ').append(field);
}

std::string LogDate(const DateTime& when) { return Join(DateText(when), " ", TimeText(when)); }

void SkipBlanks(std::string_view& line) {
  line.remove_prefix(std::min(line.find_first_not_of(' '), line.size()));
}

/// The number in a field. Plain digits, which every intact line has, are read without the parser.
Integer ReadNumber(std::string_view field) {
  int number = 0;
  const char* end = field.data() + field.size();
  const auto [stop, error] = std::from_chars(field.data(), end, number);
  return error == std::errc{} && stop == end ? Integer(number) : RoundTo<Integer>(ParsePrefix(field));
}

/// Removes the number from the start of the line and returns it.
Integer TakeNumber(std::string_view& line) {
  SkipBlanks(line);
  const std::size_t end = std::min(line.find(' '), line.size());
  const Integer number = ReadNumber(line.substr(0, end));
  line.remove_prefix(end);
  return number;
}

/// Whether the line ends within its number because the disk was full. In a complete line a blank follows it.
bool IsNumberIncomplete(std::string_view line, bool closed) {
  SkipBlanks(line);
  return !closed && line.find(' ') == std::string_view::npos;
}

/// Calls the reader with each line that is not empty, and whether the line has its line break, which the last
/// one may lack. The log is read at every start, so it is read in blocks and never kept as a whole.
template <class Reader>
void ReadLines(ShellPorts& ports, Reader reader) {
  InputFile file(LogPath(ports));
  std::string text;
  for (bool more = true; more;) {
    const std::size_t kept = text.size();
    text.resize(kept + blockLength);
    text.resize(kept + file.Read(text.data() + kept, blockLength));
    more = text.size() == kept + blockLength;
    std::size_t begin = 0;
    for (std::size_t end = text.find('\n', kept); end != std::string::npos; end = text.find('\n', begin)) {
      std::string_view line(text.data() + begin, end - begin);
      begin = end + 1;
      if (line.ends_with('\r')) line.remove_suffix(1);
      if (!line.empty()) reader(line, true);
    }
    text.erase(0, begin);
  }
  if (text.ends_with('\r')) text.pop_back();
  if (!text.empty()) reader(text, false);
}

std::chrono::sys_seconds TimePoint(const DateTime& when) {
  const std::chrono::year_month_day day{std::chrono::year(when.Year),
                                        std::chrono::month(static_cast<unsigned>(when.Month)),
                                        std::chrono::day(static_cast<unsigned>(when.Day))};
  return std::chrono::sys_days(day) + std::chrono::hours(when.Hour) + std::chrono::minutes(when.Minute) +
         std::chrono::seconds(when.Second);
}

void LogSession(const ShellRecord& shell, const CaseRecord& c, ShellPorts& ports) {
  TimesExecuted.Write(ports.Store, Join(c.ExecCount));
  const DateTime now = ports.Time.Now();
  const Long seconds = SecondsBetween(shell.SessionStart, now);
  AppendLine(LogPath(ports), SessionLine(shell.SessionNumber, shell.SessionStart, now, seconds));
}

/// Shows the message about a log that another program keeps open. AppendLine waits for such a program instead
/// of failing, so only a port can raise this failure. The program ends even if nobody answers the message.
void ReportOpenLog(ShellPorts& ports) {
  try {
    ports.Boxes.Inform(
        BoxStyle::Critical,
        Join("Unexpected error has occured within the", CRLF, "Program. Contact your Software vendor.", CRLF,
             "Continued use of this package may lead", CRLF, "to some other complications."));
  } catch (const Unanswered&) {
    return;
  }
}

/// At least two digits. The number is negative if the clock was set back.
std::string TwoPlaces(Long number) {
  const int value = static_cast<int>(number.Value());
  return value < 0 ? Join("-", TwoDigits(-value)) : TwoDigits(value);
}

/// The number of whole units of the given seconds, rounded down.
Long WholeUnits(Long seconds, int unit) { return RoundTo<Long>(std::floor((seconds / unit).Value())); }

Long Remainder(Long number, int divisor) { return Long(number.Value() % divisor); }

}  // namespace

void StartSession(ShellRecord& shell, ShellPorts& ports) {
  shell.SessionStart = ports.Time.Now();
  try {
    ReadLines(ports, [&](std::string_view line, bool closed) {
      // The number of an incomplete line was the next one.
      shell.SessionNumber =
          IsNumberIncomplete(line, closed) ? shell.SessionNumber + Integer(1) : TakeNumber(line);
    });
  } catch (const Failure&) {
    // Of a missing or damaged log, only what was read counts.
  }
  shell.SessionNumber += Integer(1);
}

void Inhp(ShellRecord& shell, const CaseRecord& c, ShellPorts& ports) {
  if (shell.Ended) return;
  shell.Ended = true;
  try {
    LogSession(shell, c, ports);
  } catch (const Failure& failure) {
    if (failure.Number == FileAlreadyOpen) ReportOpenLog(ports);
  }
  ports.Running.End();
}

std::string SessionLine(Integer number, const DateTime& start, const DateTime& end, Long seconds) {
  std::string line = Join(" ", number, " ");
  PrintZone(line, LogDate(start));
  PrintZone(line, LogDate(end));
  PrintZone(line, Join(" ", seconds, " "));
  return line;
}

Long SecondsBetween(const DateTime& start, const DateTime& end) {
  return Long((TimePoint(end) - TimePoint(start)).count());
}

SessionTable ReadSessionLog(ShellPorts& ports) {
  SessionTable table;
  ReadLines(ports, [&](std::string_view line, bool) {
    if (++table.Count > MostSessions) throw Failure(SubscriptOutOfRange);
    SessionRow row;
    row.Number = TakeNumber(line);
    SkipBlanks(line);
    row.Start = line.substr(0, dateWidth);
    row.End = line.substr(std::min(endColumn, line.size()), dateWidth);
    row.Length = RoundTo<Long>(ParsePrefix(line.substr(line.size() - std::min(lengthWidth, line.size()))));
    table.TotalSeconds += row.Length;
    table.Rows.push_back(std::move(row));
  });
  return table;
}

std::string TotalTimeText(Long totalSeconds) {
  const Long seconds = Remainder(totalSeconds, 60);
  const Long minutes = Remainder(WholeUnits(totalSeconds, 60), 60);
  const Long hours = Remainder(WholeUnits(totalSeconds, 3600), 24);
  const Long days = WholeUnits(totalSeconds, 86400);
  return Join("Total duration: ", days, "day(s):", TwoPlaces(hours), "h:", TwoPlaces(minutes),
              "m:", TwoPlaces(seconds), "s (", totalSeconds, " seconds)");
}

}  // namespace qismora
