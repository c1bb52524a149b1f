// The program is killed at each of its system calls while it saves, one after the other. At every moment all
// earlier reports and all lines of the log must be whole, and the next run must save as usual.

#include <gtest/gtest.h>

#include <map>
#include <set>

#include "base/Files.h"
#include "base/Text.h"
#include "support/Processes.h"
#include "support/SavingProgram.h"
#include "support/TemporaryFolder.h"

namespace qismora {
namespace {

namespace fs = std::filesystem;
using testing::Outcome;
using testing::ReadWholeFile;
using testing::SavingProgram;
using testing::TemporaryFolder;

/// What lies in a folder after a run: each file with its content.
using Content = std::map<std::string, std::string>;

Content ReadFolder(const TemporaryFolder& folder) {
  Content content;
  for (const auto& entry : fs::directory_iterator(folder.Path()))
    content[entry.path().filename().string()] = ReadWholeFile(entry.path().string());
  return content;
}

/// A whole run of the program.
void SaveAll(const TemporaryFolder& folder, int sons) {
  SavingProgram program(folder.Path(), sons);
  program.SaveReport();
  program.SaveResults();
  program.End();
}

bool IsUnfinished(const std::string& name) { return name.starts_with(".report-") && name.ends_with(".part"); }

/// Compares the folder after the kill with the one before and the one after a whole run.
void CheckFolder(const Content& found, const Content& before, const Content& after) {
  for (const auto& [name, text] : found) {
    if (IsUnfinished(name)) continue;
    ASSERT_TRUE(after.contains(name)) << name;
    EXPECT_TRUE(text == after.at(name) || (before.contains(name) && text == before.at(name))) << name;
  }
  for (const auto& [name, text] : before) {
    EXPECT_TRUE(found.contains(name)) << name;
  }
}

void EndAtEveryCall(bool reportsBefore) {
  int calls = 0;
  std::set<Content> states;
  for (Outcome outcome = Outcome::Killed; outcome == Outcome::Killed; ++calls) {
    SCOPED_TRACE(Join("killed at call ", calls + 1));
    const TemporaryFolder folder;
    if (reportsBefore) SaveAll(folder, 1);
    const Content before = ReadFolder(folder);
    outcome = testing::RunUpToCall(calls + 1, [&] { SaveAll(folder, 3); });
    if (outcome == Outcome::NotPermitted) GTEST_SKIP() << "no program may be watched here";
    const Content found = ReadFolder(folder);

    SaveAll(folder, 3);
    Content after = ReadFolder(folder);
    EXPECT_EQ(after["zayd.txt"], after["FullReport"]) << "the next run saves its report";
    EXPECT_NE(after["zayd.txt"], reportsBefore ? before.at("zayd.txt") : "");
    for (const auto& [name, text] : after) EXPECT_FALSE(IsUnfinished(name)) << name << " is never removed";
    // A log that got its line before the end has one more after the next run.
    const std::string line = found.contains("popuQism.ppl") ? found.at("popuQism.ppl") : "";
    EXPECT_TRUE(after["popuQism.ppl"].starts_with(line));
    EXPECT_TRUE(line.empty() || line.ends_with(CRLF));
    EXPECT_EQ(line.size() % (after["popuQism.ppl"].size() - line.size()), 0U) << "whole lines";
    after["popuQism.ppl"] = line;
    CheckFolder(found, before, after);
    states.insert(found);
    if (::testing::Test::HasFailure()) return;
  }
  // The kills have hit the saving, and not only what comes before it.
  EXPECT_GT(states.size(), 5U) << calls << " calls";
}

TEST(Kill, AtEachMomentOfTheFirstSaving) { EndAtEveryCall(false); }
TEST(Kill, AtEachMomentOfSavingOverEarlierReports) { EndAtEveryCall(true); }

}  // namespace
}  // namespace qismora
