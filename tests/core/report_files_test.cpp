#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>

#include "base/Files.h"
#include "support/ScreenFixture.h"
#include "support/TemporaryFolder.h"

namespace qismora {
namespace {

namespace fs = std::filesystem;
using testing::ReadWholeFile;
using testing::ScreenFixture;
using testing::TemporaryFolder;

/// A case whose report goes to a folder of its own.
class ReportFiles : public ::testing::Test {
 protected:
  ReportFiles() {
    Case.Fakes.Folders.Folder = Folder.Path();
    Case.TypeEstate("24000");
    Case.Type(1, "1");
    Case.Type(2, "1");
    Case.Fakes.Ports.SaveEnded = [this](const SaveOutcome& outcome) { Outcomes.push_back(outcome); };
  }

  /// The last outcome, which is taken; its reason is empty where the file was saved.
  std::pair<std::string, std::string> Outcome() {
    if (Outcomes.empty()) return {"none", "none"};
    const SaveOutcome last = Outcomes.back();
    EXPECT_EQ(Outcomes.size(), 1U);
    Outcomes.clear();
    return {last.Path.substr(std::min(last.Path.size(), Folder.Path().size() + 1)), last.Reason};
  }
  using Ended = std::pair<std::string, std::string>;

  std::vector<std::string> Names() const { return testing::NamesIn(Folder.Path()); }

  TemporaryFolder Folder;
  ScreenFixture Case;
  std::vector<SaveOutcome> Outcomes;
};

TEST_F(ReportFiles, AnInvalidNameSavesTheWorkingFileAlone) {
  fs::create_directory(Folder.File("reports"));
  Case.Fakes.Folders.Folder = Folder.File("reports");
  for (const std::string& name : {std::string("../escaped"), std::string("a\\b"), std::string(300, 'x')}) {
    Case.Fakes.Boxes.Shown.clear();
    Case.Type(NameField, name);
    Case.Study->CreateSaveFullReport_Click();
    EXPECT_TRUE(Case.Fakes.Boxes.Shown.empty()) << name;
    EXPECT_EQ(Names(), std::vector<std::string>{"reports"}) << name;
    EXPECT_EQ(testing::NamesIn(Folder.File("reports")), std::vector<std::string>{"FullReport"}) << name;
    EXPECT_EQ(Outcome().second, name.size() == 300 ? "the name is too long" : "this is no file name");
  }
}

TEST_F(ReportFiles, AFullReportAsksBeforeItReplacesWhateverHasTheName) {
  Case.Type(NameField, "Zayd");
  std::ofstream(Folder.File("elsewhere")) << "not ours";
  fs::create_symlink(Folder.File("elsewhere"), Folder.File("zayd.txt"));
  for (const Answer answer : {Answer::No, Answer::Yes}) {
    Case.Fakes.Boxes.Answers = {answer};
    Case.Study->CreateSaveFullReport_Click();
    EXPECT_EQ(fs::is_symlink(Folder.File("zayd.txt")), answer == Answer::No);
    EXPECT_EQ(ReadWholeFile(Folder.File("elsewhere")), "not ours");
  }
  fs::remove(Folder.File("zayd.txt"));
  fs::create_directory(Folder.File("zayd.txt"));
  Outcomes.clear();
  Case.Fakes.Boxes.Shown.clear();
  Case.Fakes.Boxes.Answers = {Answer::Yes};
  Case.Study->CreateSaveFullReport_Click();
  ASSERT_EQ(Case.Fakes.Boxes.Shown.size(), 1U);
  EXPECT_EQ(Case.Fakes.Boxes.Shown[0].Buttons, BoxButtons::YesNo);
  EXPECT_EQ(Outcome(), Ended("zayd.txt", "a folder has this name"));
}

TEST_F(ReportFiles, ResultsSavedOntoALinkGoToTheFileThatItLeadsTo) {
  fs::create_directory(Folder.File("far"));
  std::ofstream(Folder.File("far/file")) << "earlier";
  fs::create_symlink("far/file", Folder.File("link.txt"));
  Case.Study->Label1_DblClick(1);
  Case.Fakes.Dialogs.Paths = {Folder.File("link.txt")};
  Case.Fakes.Boxes.Answers = {Answer::Yes};
  Case.Study->SaveResults_Click();
  EXPECT_TRUE(fs::is_symlink(Folder.File("link.txt")));
  EXPECT_TRUE(ReadWholeFile(Folder.File("far/file")).starts_with("WIFE'S SHARE\r\n"));
  EXPECT_EQ(Outcome(), Ended("link.txt", ""));
}

// The list of files holds no folders, so that nobody is asked.
TEST_F(ReportFiles, ResultsAreNotSavedOverAFolder) {
  fs::create_directory(Folder.File("results"));
  Case.Study->Label1_DblClick(1);
  Case.Fakes.Boxes.Shown.clear();
  Case.Fakes.Dialogs.Paths = {Folder.File("results")};
  Case.Study->SaveResults_Click();
  EXPECT_TRUE(Case.Fakes.Boxes.Shown.empty());
  EXPECT_EQ(Outcome(), Ended("results", "a folder has this name"));
  Case.Fakes.Dialogs.Paths = {"/proc"};
  Case.Study->SaveResults_Click();
  EXPECT_EQ(Outcome().second, "a folder has this name") << "the root of all folders is found too";
}

TEST_F(ReportFiles, AnEmptyPanelLeavesAnEarlierFileThatTheUserAgreedToReplace) {
  std::ofstream(Folder.File("earlier.txt")) << "earlier";
  Case.Study->Text2.Text = "hidden";
  Case.Study->Text2.Visible = false;
  Case.Study->Text3.Visible = true;
  Case.Fakes.Dialogs.Paths = {Folder.File("earlier.txt")};
  Case.Fakes.Boxes.Answers = {Answer::Yes};
  Case.Study->SaveResults_Click();
  EXPECT_EQ(ReadWholeFile(Folder.File("earlier.txt")), "earlier");
  EXPECT_TRUE(Outcomes.empty());
}

TEST_F(ReportFiles, AnUnansweredQuestionAbandonsItsCommand) {
  Case.Fakes.Boxes.QuestionsEnd = true;
  Case.Type(WillsField, "20000");
  Case.Study->CreateSaveFullReport_Click();
  EXPECT_TRUE(Names().empty()) << "nobody has agreed to the larger will";
  EXPECT_EQ(Case.Fakes.Boxes.Shown.size(), 1U) << "no message follows";
  EXPECT_FALSE(Case.Record.ReportToFile);
  EXPECT_FALSE(Case.Record.CaseLoaded);
  EXPECT_TRUE(Outcomes.empty());

  Case.Type(WillsField, "0");
  std::ofstream(Folder.File("abdullah.txt")) << "earlier";
  Case.Fakes.Dialogs.Paths = {Folder.File("abdullah.txt")};
  Case.Study->CreateSaveFullReport_Click();
  Case.Study->SaveResults_Click();
  EXPECT_EQ(Case.Fakes.Boxes.Shown.size(), 3U) << "no message follows";
  EXPECT_EQ(ReadWholeFile(Folder.File("abdullah.txt")), "earlier");
}

TEST_F(ReportFiles, SavedResultsKeepTheScriptsOfTheName) {
  Case.Type(NameField, "عبد الله É");
  Case.Study->CreateSaveFullReport_Click();
  EXPECT_EQ(Names(), (std::vector<std::string>{"FullReport", "عبد الله é.txt"}));
  EXPECT_NE(ReadWholeFile(Folder.File("FullReport")).find("DECEASED عبد الله É\r\n"), std::string::npos);
}

}  // namespace
}  // namespace qismora
