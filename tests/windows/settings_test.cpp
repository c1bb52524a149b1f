// The settings of the running program, which QSettings keeps in files that other programs may change. Needs
// no window.

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QSettings>
#include <fstream>

#include "base/Files.h"
#include "shell/AppSettings.h"
#include "support/FullDisk.h"
#include "support/TemporaryFolder.h"
#include "windows/platform/QtPorts.h"
#include "windows/platform/Utf8.h"

namespace qismora {
namespace {

namespace fs = std::filesystem;
using testing::ReadWholeFile;
using testing::TemporaryFolder;

/// A user's directory for settings.
struct SettingsFolder : TemporaryFolder {
  SettingsFolder() { QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, ToQt(Path())); }

  std::string Settings() const { return File("Qismora/Qismora.conf"); }
};

int Stored(const Setting& setting) {
  QtSettings store;
  return static_cast<int>(setting.Read(store).Value());
}

void Store(const Setting& setting, int number) {
  QtSettings store;
  setting.Write(store, std::to_string(number));
}

TEST(StoredSettings, AreThoseThatAnotherProgramHasWrittenSince) {
  const SettingsFolder folder;
  Store(TimesExecuted, 1);
  EXPECT_EQ(Stored(TimesExecuted), 1);
  std::ofstream(folder.Settings()) << "[Inheritance]\nTimesExecuted=25\nOther=kept\n";
  EXPECT_EQ(Stored(TimesExecuted), 25);
  Store(TimesExecuted, 26);
  EXPECT_EQ(ReadWholeFile(folder.Settings()), "[Inheritance]\nOther=kept\nTimesExecuted=26\n");
}

// QSettings would leave an empty file.
TEST(StoredSettings, KeepTheirValuesWhenTheDiskIsFull) {
  const SettingsFolder folder;
  Store(TimesExecuted, 1);
  {
    const testing::FullDisk full(10);
    Store(TimesExecuted, 2);
  }
  EXPECT_EQ(Stored(TimesExecuted), 1);
}

// The test does not end if the program waits for a pipe.
TEST(StoredSettings, AreReadFromAndWrittenToOrdinaryFilesOnly) {
  for (const char* name : {"Qismora/Qismora.conf", "Qismora/Qismora.conf.lock", "Qismora.conf"}) {
    const SettingsFolder folder;
    fs::create_directory(folder.File("Qismora"));
    ASSERT_EQ(mkfifo(folder.File(name).c_str(), 0600), 0);
    EXPECT_EQ(Stored(TimesExecuted), 0);
    Store(TimesExecuted, 1);
    EXPECT_TRUE(fs::is_fifo(folder.File(name))) << name;
  }
}

}  // namespace
}  // namespace qismora
