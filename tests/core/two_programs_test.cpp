// Two programs that save at the same moment in the same folder, under the same name. QSettings takes care of
// the settings, which they share too.

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>

#include "base/Files.h"
#include "base/Text.h"
#include "support/Processes.h"
#include "support/SavingProgram.h"
#include "support/TemporaryFolder.h"

namespace qismora {
namespace {

namespace fs = std::filesystem;
using testing::ReadWholeFile;
using testing::SavingProgram;
using testing::TemporaryFolder;

constexpr int rounds = 200;

/// The file of a program that is alone in its folder.
std::string Alone(int sons, const char* file) {
  const TemporaryFolder folder;
  SavingProgram program(folder.Path(), sons);
  program.SaveReport();
  program.SaveResults();
  return ReadWholeFile(folder.File(file));
}

void RunTwoPrograms(const std::function<void(int sons)>& round) {
  testing::RunTwoPrograms([&](int program) {
    for (int i = 0; i < rounds; ++i) round(program + 1);
  });
}

TEST(TwoPrograms, AReportUnderTheSameNameIsWholeAtEveryMoment) {
  const std::string reports[] = {Alone(1, "zayd.txt"), Alone(2, "zayd.txt")};
  const std::string results[] = {Alone(1, "results.txt"), Alone(2, "results.txt")};
  ASSERT_NE(reports[0], reports[1]);
  const TemporaryFolder folder;
  // A reader sees a whole report at every moment, not only when all is over.
  RunTwoPrograms([&](int sons) {
    SavingProgram program(folder.Path(), sons);
    program.SaveReport();
    program.SaveResults();
    if (std::ranges::count(reports, ReadWholeFile(folder.File("zayd.txt"))) != 1) _exit(1);
    if (std::ranges::count(results, ReadWholeFile(folder.File("results.txt"))) != 1) _exit(2);
  });
  EXPECT_EQ(std::ranges::count(reports, ReadWholeFile(folder.File("zayd.txt"))), 1);
  EXPECT_EQ(std::ranges::count(results, ReadWholeFile(folder.File("results.txt"))), 1);
  for (const auto& entry : fs::directory_iterator(folder.Path())) {
    EXPECT_FALSE(entry.path().filename().string().ends_with(".part")) << entry.path();
  }
}

TEST(TwoPrograms, EachSessionHasItsLine) {
  const TemporaryFolder folder;
  RunTwoPrograms([&](int sons) { SavingProgram(folder.Path(), sons).End(); });
  testing::FakePorts fakes;
  fakes.Folders.Folder = folder.Path();
  const SessionTable table = ReadSessionLog(fakes.Ports);
  EXPECT_EQ(table.Count, 2 * rounds);
  for (int i = 1; i <= table.Count; ++i) {
    EXPECT_EQ(table.Rows[static_cast<std::size_t>(i)].Start, "05/03/2024 14:07:09      ");
    EXPECT_EQ(table.Rows[static_cast<std::size_t>(i)].Length, 0);
  }
}

}  // namespace
}  // namespace qismora
