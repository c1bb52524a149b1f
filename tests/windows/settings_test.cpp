// The settings of the running program, which QSettings keeps in files: two programs that share them, and a
// program that is killed while it writes. Needs no window, but processes.

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QSettings>
#include <chrono>
#include <cstdlib>
#include <fstream>
#include <set>

#include "base/Files.h"
#include "base/Text.h"
#include "shell/AppSettings.h"
#include "support/Processes.h"
#include "support/TemporaryFolder.h"
#include "windows/platform/QtPorts.h"
#include "windows/platform/Utf8.h"

namespace qismora {
namespace {

namespace fs = std::filesystem;
using testing::Outcome;
using testing::TemporaryFolder;

/// A user's directory for settings, on a memory disk where there is one, since each setting is synchronized
/// to the disk.
struct SettingsFolder : TemporaryFolder {
  SettingsFolder() { QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, ToQt(Path())); }

  [[maybe_unused]] static inline const int InMemory =
      access("/dev/shm", W_OK) == 0 ? setenv("TMPDIR", "/dev/shm", 0) : 0;
};

int Stored(const Setting& setting) {
  QtSettings store;
  return static_cast<int>(setting.Read(store).Value());
}

void Store(const Setting& setting, int number) {
  QtSettings store;
  setting.Write(store, std::to_string(number));
}

/// Hands the turn from one program to the other.
class Turn {
 public:
  Turn() { EXPECT_EQ(pipe(ends_), 0); }
  ~Turn() {
    for (const int end : ends_) close(end);
  }
  Turn(const Turn&) = delete;
  Turn& operator=(const Turn&) = delete;

  void Give() const { EXPECT_EQ(write(ends_[1], "", 1), 1); }
  void Await() const {
    char any = 0;
    EXPECT_EQ(read(ends_[0], &any, 1), 1);
  }

 private:
  int ends_[2] = {};
};

// Qt recognizes a file that another program has changed by its size and time. The clock of a file system
// ticks every few milliseconds.
constexpr useconds_t tick = 20000;

TEST(StoredSettings, TwoProgramsThatWriteInTurnLoseNothing) {
  constexpr int rounds = 20;
  const SettingsFolder folder;
  const Turn turns[2];
  turns[0].Give();
  testing::RunTwoPrograms([&](int program) {
    const Setting& own = program == 0 ? LowerImage : LblPressed;
    const Setting& other = program == 0 ? LblPressed : LowerImage;
    for (int i = 1; i <= rounds; ++i) {
      turns[program].Await();
      if (Stored(own) != i - 1 || Stored(other) != i - 1 + program) _exit(1);
      if (Stored(TimesExecuted) != 2 * (i - 1) + program) _exit(2);
      usleep(tick);
      Store(own, i);
      Store(TimesExecuted, 2 * (i - 1) + program + 1);
      turns[1 - program].Give();
    }
  });
  EXPECT_EQ(Stored(LowerImage), rounds);
  EXPECT_EQ(Stored(LblPressed), rounds);
  EXPECT_EQ(Stored(TimesExecuted), 2 * rounds);
}

TEST(StoredSettings, TwoProgramsThatWriteAtOnceLeaveAWholeFile) {
  constexpr int rounds = 500;
  const SettingsFolder folder;
  const std::string path = folder.File("Qismora/Qismora.conf");
  const auto isWhole = [&] {
    const std::string text = ReadWholeFile(path);
    const int number = Stored(TimesExecuted);
    return number > 0 && text.starts_with("[Inheritance]\nTimesExecuted=") && text.ends_with("\n");
  };
  testing::RunTwoPrograms([&](int program) {
    for (int i = 1; i <= rounds; ++i) {
      Store(TimesExecuted, 10 * i + program);
      if (!isWhole()) _exit(1);
    }
  });
  EXPECT_TRUE(isWhole());
  EXPECT_EQ(Stored(TimesExecuted) / 10, rounds) << "the last of one of them";
}

// A pipe that is waited for hangs the test.
TEST(StoredSettings, OnlyAnOrdinaryFileIsReadOrWritten) {
  for (const char* name : {"Qismora/Qismora.conf", "Qismora/Qismora.conf.lock", "Qismora.conf"}) {
    const SettingsFolder folder;
    fs::create_directory(folder.File("Qismora"));
    ASSERT_EQ(mkfifo(folder.File(name).c_str(), 0600), 0);
    EXPECT_EQ(Stored(TimesExecuted), 0);
    Store(TimesExecuted, 1);
    EXPECT_TRUE(fs::is_fifo(folder.File(name))) << name;
  }
}

/// Stores all that the program keeps.
void StoreAll(int number) {
  for (const Setting& setting : {LowerImage, LblPressed, TimesExecuted}) Store(setting, number);
}

// Qt takes over a lock without the name of its owner when it is half a minute old; the test makes it so.
void AgeEmptyLocks(const TemporaryFolder& folder) {
  for (const auto& entry : fs::directory_iterator(folder.File("Qismora"))) {
    if (entry.path().extension() == ".lock" && entry.file_size() == 0)
      fs::last_write_time(entry, fs::file_time_type::clock::now() - std::chrono::seconds(40));
  }
}

TEST(StoredSettings, AKilledProgramLeavesTheOldOrTheNewAndNoOtherWaitsForIt) {
  std::set<std::string> states;
  int calls = 0;
  for (Outcome outcome = Outcome::Killed; outcome == Outcome::Killed; ++calls) {
    SCOPED_TRACE(Join("killed at call ", calls + 1));
    const SettingsFolder folder;
    StoreAll(1);
    outcome = testing::RunUpToCall(calls + 1, [] { StoreAll(2); });
    if (outcome == Outcome::NotPermitted) GTEST_SKIP() << "no program may be watched here";
    states.insert(Join(Stored(LowerImage), Stored(LblPressed), Stored(TimesExecuted)));

    AgeEmptyLocks(folder);
    StoreAll(3);
    for (const Setting& setting : {LowerImage, LblPressed, TimesExecuted}) EXPECT_EQ(Stored(setting), 3);
    if (::testing::Test::HasFailure()) return;
  }
  EXPECT_EQ(states, (std::set<std::string>{"111", "211", "221", "222"}));
}

}  // namespace
}  // namespace qismora
