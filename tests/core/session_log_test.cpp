#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <fstream>

#include "base/Files.h"
#include "base/Text.h"
#include "screens/Session.h"
#include "shell/SessionLog.h"
#include "support/FakePorts.h"
#include "support/TemporaryFolder.h"

namespace qismora {
namespace {

using testing::FakePorts;
using testing::ReadWholeFile;
using testing::TemporaryFolder;

constexpr DateTime noon = {2024, 3, 5, 12, 0, 0};
constexpr DateTime later = {2024, 3, 5, 13, 2, 5};

/// A program that keeps its log in a folder of its own.
struct Logged {
  Logged() { Fakes.Folders.Folder = Folder.Path(); }

  std::string Path() const { return Folder.File("popuQism.ppl"); }
  std::string Content() const { return ReadWholeFile(Path()); }

  void Add(int number, const DateTime& start, const DateTime& end, int seconds) const {
    AppendLine(Path(), SessionLine(Integer(number), start, end, Long(seconds)));
  }

  /// One run of the program, from its start to its end; its number.
  Integer Run() {
    ShellRecord shell;
    StartSession(shell, Fakes.Ports);
    Inhp(shell, Record, Fakes.Ports);
    return shell.SessionNumber;
  }

  TemporaryFolder Folder;
  FakePorts Fakes;
  CaseRecord Record;
};

// A length of more than seven digits loses its first ones.
TEST(SessionLog, IsReadAsItIsWritten) {
  Logged logged;
  const struct {
    int Number, Seconds, Read;
  } lines[] = {{1, 0, 0},
               {12345, 3725, 3725},
               {32767, -1, -1},
               {-32768, -86400, -86400},
               {5, 9999999, 9999999},
               {6, -999999, -999999},
               {7, 12345678, 2345678},
               {8, 2147483647, 7483647}};
  for (const auto& line : lines) logged.Add(line.Number, noon, later, line.Seconds);
  const SessionTable table = ReadSessionLog(logged.Fakes.Ports);
  ASSERT_EQ(table.Count, static_cast<int>(std::size(lines)));
  for (std::size_t i = 0; i < std::size(lines); ++i) {
    const SessionRow& row = table.Rows[i + 1];
    EXPECT_EQ(row.Number, lines[i].Number);
    EXPECT_EQ(row.Start, "05/03/2024 12:00:00      ");
    EXPECT_EQ(row.End, "  05/03/2024 13:02:05    ");
    EXPECT_EQ(row.Length, lines[i].Read);
  }
}

TEST(SessionLog, SessionsAreNumberedFromTheLogItself) {
  Logged logged;
  EXPECT_EQ(logged.Run(), 1) << "no log yet";
  EXPECT_EQ(logged.Run(), 2);
  logged.Add(41, noon, later, 1);
  EXPECT_EQ(logged.Run(), 42);
  std::filesystem::remove(logged.Path());
  EXPECT_EQ(logged.Run(), 1);
  std::ofstream(logged.Path()).close();
  EXPECT_EQ(logged.Run(), 1) << "an empty log";
}

TEST(SessionLog, ADamagedLogCountsUpToTheDamage) {
  Logged logged;
  logged.Add(8, noon, later, 1);
  AppendLine(logged.Path(), " 99999 too large a number");
  logged.Add(10, noon, later, 1);
  EXPECT_EQ(logged.Run(), 9);
  std::ofstream(logged.Path()) << " 3 unix line\n\n 4 next\r\n";
  EXPECT_EQ(logged.Run(), 5) << "lines may end in a single line feed, and an empty one is no session";
  std::ofstream(logged.Path()) << " 5 " << std::string(200000, 'x') << "\n 6 without a break";
  EXPECT_EQ(logged.Run(), 7) << "a line may be of any length, and the last one lack its break";
}

// A full disk may have cut a line anywhere. The next session has a line of its own, and no number repeats.
TEST(SessionLog, AnIncompleteLineDamagesNoOther) {
  const std::string whole = Join(SessionLine(Integer(12), noon, later, Long(3725)), CRLF);
  for (std::size_t torn = 1; torn < whole.size(); ++torn) {
    Logged logged;
    logged.Add(11, noon, later, 1);
    std::ofstream(logged.Path(), std::ios::app) << whole.substr(0, torn);
    EXPECT_EQ(logged.Run(), 13) << torn;
    EXPECT_EQ(logged.Run(), 14) << torn;
    const SessionTable table = ReadSessionLog(logged.Fakes.Ports);
    ASSERT_EQ(table.Count, 4) << torn;
    EXPECT_EQ(table.Rows[3].Number, 13) << torn;
    EXPECT_EQ(table.Rows[3].Start, "05/03/2024 14:07:09      ") << torn;
  }
}

TEST(SessionLog, ALogThatIsNoOrdinaryFileIsNeitherReadNorWritten) {
  Logged logged;
  ASSERT_EQ(mkfifo(logged.Path().c_str(), 0600), 0);
  EXPECT_EQ(logged.Run(), 1) << "a pipe is not waited for";
  std::filesystem::remove(logged.Path());
  std::filesystem::create_symlink("/dev/zero", logged.Path());
  EXPECT_EQ(logged.Run(), 1) << "a device has no end";
}

TEST(SessionLog, TheExitRunsOnceAndSavesTheExecutions) {
  Logged logged;
  logged.Record.ExecCount = Long(77);
  ShellRecord shell;
  logged.Fakes.Clock.Time = noon;
  StartSession(shell, logged.Fakes.Ports);
  logged.Fakes.Clock.Time = later;
  Inhp(shell, logged.Record, logged.Fakes.Ports);
  Inhp(shell, logged.Record, logged.Fakes.Ports);
  EXPECT_EQ(logged.Fakes.Program.Ends, 1);
  EXPECT_EQ(logged.Content(),
            " 1            05/03/2024 12:00:00         05/03/2024 13:02:05          3725 \r\n");
  EXPECT_EQ(logged.Fakes.Settings.Values["Qismora/Inheritance/TimesExecuted"], "77");
}

/// The folder of a log that cannot be written for a given reason.
struct FailingFolders : testing::FakeFolders {
  std::string Log() override { throw Failure(Number); }
  int Number = 0;
};

TEST(SessionLog, OnlyAnOpenFileIsReported) {
  for (const int failure : {FileAlreadyOpen, PermissionDenied, PathFileAccess}) {
    FakePorts fakes;
    FailingFolders folders;
    folders.Number = failure;
    ShellPorts ports{{fakes.Clock, fakes.Boxes, fakes.Dialogs, fakes.Settings, folders},
                     fakes.Viewer,
                     fakes.Player,
                     fakes.Memory,
                     fakes.Program};
    ShellRecord shell;
    StartSession(shell, ports);
    Inhp(shell, CaseRecord(), ports);
    EXPECT_EQ(fakes.Program.Ends, 1) << "the program ends in any case";
    EXPECT_EQ(fakes.Settings.Values["Qismora/Inheritance/TimesExecuted"], "0") << "saved before the log";
    ASSERT_EQ(fakes.Boxes.Shown.size(), failure == FileAlreadyOpen ? 1U : 0U);
    if (failure != FileAlreadyOpen) continue;
    EXPECT_EQ(fakes.Boxes.Shown[0].Text,
              "Unexpected error has occured within the\r\nProgram. Contact your Software vendor.\r\n"
              "Continued use of this package may lead\r\nto some other complications.");
  }
}

TEST(SessionLog, ASessionTooLongForALengthLeavesNoLine) {
  Logged logged;
  ShellRecord neverStarted;
  Inhp(neverStarted, logged.Record, logged.Fakes.Ports);
  EXPECT_EQ(logged.Fakes.Program.Ends, 1);
  EXPECT_TRUE(logged.Fakes.Boxes.Shown.empty());
  EXPECT_FALSE(FileExists(logged.Path()));
}

TEST(SessionForm, ShowsTheNewestFirstAndATotal) {
  Logged logged;
  logged.Add(1, noon, later, 3725);
  logged.Add(2, later, noon, 60);
  Session form(logged.Fakes.Ports);
  EXPECT_EQ(form.Label3.Caption.Get(), "TOTAL TIME");
  form.Open();
  ASSERT_EQ(form.MSFlexGrid1.Rows.size(), 5U);
  const Grid& grid = form.MSFlexGrid1;
  EXPECT_EQ(grid.Rows[0], (Grid::Line{"Session", "Start of Session", "End of Session", "Session Length"}));
  EXPECT_EQ(grid.Rows[1], (Grid::Line{"Number", "Date & Time", "Date & Time", "Seconds"}));
  EXPECT_EQ(grid.Rows[2], (Grid::Line{"2", "05/03/2024 13:02:05      ", "  05/03/2024 12:00:00    ", "60"}));
  EXPECT_EQ(grid.Rows[3][0], "1");
  EXPECT_EQ(grid.Rows[4], Grid::Line());
  EXPECT_EQ(form.Label2.Caption.Get(),
            "2     05/03/2024 12:00:00             05/03/2024 13:02:05         3725")
      << "the newest number beside the oldest times";
  form.MSFlexGrid1_Click(3, 0);
  EXPECT_EQ(form.Label2.Caption.Get(),
            "1     05/03/2024 12:00:00             05/03/2024 13:02:05         3725");
  form.MSFlexGrid1_Click(4, 2);
  EXPECT_EQ(form.Label2.Caption.Get(), "               ");
  EXPECT_EQ(form.Label3.Caption.Get(), "Total duration: 0day(s):01h:03m:05s (3785 seconds)");
}

TEST(SessionForm, FiveThousandLinesFitAndOneMoreIsAnError) {
  Logged logged;
  for (int i = 1; i <= MostSessions; ++i) logged.Add(i, noon, later, 1);
  Session form(logged.Fakes.Ports);
  form.Open();
  EXPECT_TRUE(logged.Fakes.Boxes.Shown.empty());
  EXPECT_EQ(form.MSFlexGrid1.Rows.size(), 5003U);
  EXPECT_EQ(form.TotalSeconds, 5000);

  logged.Add(5001, noon, later, 1);
  form.Open();
  ASSERT_EQ(logged.Fakes.Boxes.Shown.size(), 1U);
  EXPECT_EQ(logged.Fakes.Boxes.Shown[0].Text, "Error 9\r\nSubscript out of range");
  EXPECT_EQ(form.MSFlexGrid1.Rows.size(), 5003U) << "the grid is not filled again";
  EXPECT_EQ(logged.Run(), 5002) << "sessions are numbered on";
}

TEST(SessionForm, AnEmptyLogShowsAnEmptyGrid) {
  Logged logged;
  std::ofstream(logged.Path()).close();
  Session form(logged.Fakes.Ports);
  form.Open();
  EXPECT_EQ(form.MSFlexGrid1.Rows.size(), 3U);
}

TEST(SessionForm, TotalTimes) {
  const std::pair<int, const char*> rows[] = {
      {0, "Total duration: 0day(s):00h:00m:00s (0 seconds)"},
      {86399, "Total duration: 0day(s):23h:59m:59s (86399 seconds)"},
      {86400, "Total duration: 1day(s):00h:00m:00s (86400 seconds)"},
      {2147483647, "Total duration: 24855day(s):03h:14m:07s (2147483647 seconds)"},
      {-5, "Total duration: -1day(s):-01h:-01m:-05s (-5 seconds)"}};
  for (const auto& [seconds, text] : rows) EXPECT_EQ(TotalTimeText(Long(seconds)), text);
}

}  // namespace
}  // namespace qismora
