#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>

#include "base/Files.h"
#include "support/MemoryCase.h"
#include "support/TemporaryFolder.h"

namespace qismora {
namespace {

namespace fs = std::filesystem;
using testing::MemoryCase;
using testing::TemporaryFolder;

/// A case whose report goes to a folder of its own.
class ReportFiles : public ::testing::Test {
 protected:
  ReportFiles() {
    Case.World.Folders.Folder = Folder.Path();
    Case.TypeEstate("24000");
    Case.Type(1, "1");
    Case.Type(2, "1");
  }

  std::vector<std::string> Names() const {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(Folder.Path()))
      names.push_back(entry.path().filename().string());
    std::ranges::sort(names);
    return names;
  }

  TemporaryFolder Folder;
  MemoryCase Case;
};

TEST_F(ReportFiles, ANameThatIsNoFileNameSavesNothingAndOverwritesNothing) {
  fs::create_directory(Folder.File("reports"));
  Case.World.Folders.Folder = Folder.File("reports");
  for (const std::string& name :
       {std::string("../escaped"), std::string("a/b"), std::string("a\\b"), std::string("."),
        std::string(".."), std::string("a\0b", 3), std::string(300, 'x')}) {
    Case.World.Boxes.Shown.clear();
    Case.Type(NameBox, name);
    Case.Study->CreateSaveFullReport_Click();
    EXPECT_TRUE(Case.World.Boxes.Shown.empty()) << name;
    EXPECT_EQ(Names(), std::vector<std::string>{"reports"}) << name;
    ASSERT_EQ(std::distance(fs::directory_iterator(Folder.File("reports")), fs::directory_iterator()), 1)
        << name;
    EXPECT_TRUE(fs::exists(Folder.File("reports/FullReport"))) << name;
    EXPECT_FALSE(Case.Study->Text3.Text.Get().empty()) << "the report is still shown";
  }
}

TEST_F(ReportFiles, AnEarlierReportStandsUntilTheUserAgrees) {
  Case.Type(NameBox, "Zayd");
  Case.Study->CreateSaveFullReport_Click();
  const std::string earlier = ReadWholeFile(Folder.File("zayd.txt"));

  Case.Type(2, "3");
  Case.Study->CreateSaveFullReport_Click();
  EXPECT_EQ(ReadWholeFile(Folder.File("zayd.txt")), earlier);

  Case.World.Boxes.Answers = {Answer::Yes};
  Case.Study->CreateSaveFullReport_Click();
  EXPECT_NE(ReadWholeFile(Folder.File("zayd.txt")), earlier);
  EXPECT_EQ(ReadWholeFile(Folder.File("zayd.txt")), ReadWholeFile(Folder.File("FullReport")));
  EXPECT_EQ(Names(), (std::vector<std::string>{"FullReport", "zayd.txt"}));
}

TEST_F(ReportFiles, AFolderWithoutPermissionKeepsTheEarlierReports) {
  Case.Type(NameBox, "Zayd");
  Case.Study->CreateSaveFullReport_Click();
  const std::string earlier = ReadWholeFile(Folder.File("zayd.txt"));
  // Root may write everywhere, so the folder is one that nobody can write to.
  Case.World.Folders.Folder = "/proc/self";
  Case.World.Boxes.Shown.clear();
  Case.Study->CreateSaveFullReport_Click();
  EXPECT_TRUE(Case.World.Boxes.Shown.empty());
  EXPECT_FALSE(Case.Record.ReportToFile);
  Case.World.Dialog.Paths = {"/proc/self/out.txt"};
  Case.Study->SaveResults_Click();
  EXPECT_EQ(ReadWholeFile(Folder.File("zayd.txt")), earlier);
}

/// Ends the program hard once a report is complete on the disk and not yet in its place.
class KilledFolders : public testing::MemoryFolders {
 public:
  void WriteThrough(const std::string&) override { std::raise(SIGKILL); }
};

TEST_F(ReportFiles, AKilledProgramKeepsTheEarlierReport) {
  Case.Type(NameBox, "Zayd");
  Case.Study->CreateSaveFullReport_Click();
  const std::string earlier = ReadWholeFile(Folder.File("zayd.txt"));
  const pid_t child = fork();
  if (child == 0) {
    KilledFolders killed;
    killed.Folder = Folder.Path();
    Outside ports = {Case.World.Clock, Case.World.Boxes, Case.World.Dialog, Case.World.Settings, killed};
    CaseRecord record;
    CaseStudy study(record, ports, 0);
    study.Text1(NameBox).Text = "Zayd";
    Case.World.Boxes.Answers = {Answer::Yes};
    study.CreateSaveFullReport_Click();
    _exit(0);
  }
  int status = 0;
  waitpid(child, &status, 0);
  ASSERT_TRUE(WIFSIGNALED(status));
  EXPECT_EQ(ReadWholeFile(Folder.File("zayd.txt")), earlier);
}

TEST_F(ReportFiles, CancelLeavesEverythingAsItWas) {
  Case.Study->Label1_DblClick(1);
  const std::string text = Case.Study->Text2.Text;
  Case.Study->SaveResults_Click();
  EXPECT_EQ(Case.World.Dialog.Suggested, "ABDULLAH");
  EXPECT_TRUE(Names().empty());
  EXPECT_EQ(Case.Study->Text2.Text.Get(), text);
}

TEST_F(ReportFiles, SavedResultsKeepTheScriptsOfTheName) {
  Case.Type(NameBox, "عبد الله É");
  Case.Study->CreateSaveFullReport_Click();
  EXPECT_EQ(Names(), (std::vector<std::string>{"FullReport", "عبد الله é.txt"}));
  EXPECT_NE(ReadWholeFile(Folder.File("FullReport")).find("DECEASED عبد الله É\r\n"), std::string::npos);
}

}  // namespace
}  // namespace qismora
