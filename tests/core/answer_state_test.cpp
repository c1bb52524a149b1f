#include <gtest/gtest.h>

#include "support/ScreenFixture.h"
#include "support/TemporaryFolder.h"

namespace qismora {
namespace {

using testing::ScreenFixture;
using testing::TemporaryFolder;

/// A screen of its own for each case; the answer is what its user would read.
struct AnswerStateTest : ::testing::Test {
  AnswerStanding Standing() const { return case_.Study->Standing(); }
  std::string Words() const { return case_.Study->AnswerWords; }
  CaseStudy& Study() { return *case_.Study; }

  /// A husband and two full sisters: seven sixths of the estate.
  void TypeAul() {
    case_.TypeEstate("4200");
    Study().Combo1.ListIndex = Female;
    case_.Type(1, "1");
    case_.Type(23, "2");
  }
  /// A daughter and the mother: two thirds of the estate.
  void TypeRadd() {
    case_.TypeEstate("600");
    case_.Type(3, "1");
    case_.Type(16, "1");
  }

  ScreenFixture case_;
};

TEST_F(AnswerStateTest, AShareAndTheReportsAreNotTheWholeDistribution) {
  EXPECT_EQ(Words(), "No answer yet.");
  case_.TypeEstate("800");
  case_.Type(1, "1");
  case_.Type(2, "1");
  EXPECT_EQ(Standing(), AnswerStanding::NoAnswer);
  Study().Label1_DblClick(1);
  EXPECT_EQ(Words(), "Answer of Share of Wives: not the whole distribution, which Residuaries (F5) gives.");
  Study().SelectedReport_Click();
  EXPECT_EQ(Words(), "Answer of Execute Selected: not the whole distribution, which Residuaries (F5) gives.");
  Study().FullReport_Click();
  EXPECT_EQ(Standing(), AnswerStanding::Partial);
  Study().Resid_Click();
  EXPECT_EQ(Words(), "Answer of Residuaries: final.");
  Study().Label1_DblClick(12);  // loads the case only; no figure is left on the screen
  EXPECT_EQ(Standing(), AnswerStanding::NoAnswer);
}

// Fractions are adjusted where they stand, so that a second press adjusts them twice.
TEST_F(AnswerStateTest, AulAndRaddAreAppliedOnce) {
  TypeAul();
  Study().Resid_Click();
  EXPECT_EQ(Words(), "Answer of Residuaries, not final: Aul is still to be applied (Aul/ Radd, F6).");
  Study().AulRadd_Click();
  EXPECT_EQ(Words(), "Answer of Aul/ Radd: final.");

  TypeRadd();
  Study().Combo1.ListIndex = Male;
  case_.Type(23, "0");
  Study().Resid_Click();
  Study().AulRadd_Click();
  const std::string right = Study().Text3.Text;
  Study().AulRadd_Click();
  EXPECT_NE(Study().Text3.Text.Get(), right);
  EXPECT_EQ(
      Words(),
      "Refused: these figures are not your case. Aul/ Radd worked on figures that it had adjusted already. "
      "Choose Residuaries again.");
  Study().Resid_Click();
  EXPECT_EQ(Standing(), AnswerStanding::ToAdjust);
}

TEST_F(AnswerStateTest, ReportsLeaveAulAndRaddToBeApplied) {
  TypeRadd();
  Study().FullReport_Click();
  EXPECT_EQ(Words(), "Answer of All Individual, not final: Radd is still to be applied (Aul/ Radd, F6).");
  Study().AulRad_Click();
  EXPECT_EQ(Standing(), AnswerStanding::Final);
}

// The command adjusts what the last test was about, whatever is shown.
TEST_F(AnswerStateTest, AulAndRaddOfOtherSharesAreRefused) {
  TypeAul();
  Study().Resid_Click();
  Study().Label1_DblClick(23);
  Study().AulRadd_Click();
  EXPECT_EQ(
      Words(),
      "Refused: these figures are not your case. Aul/ Radd was applied to other shares. Choose Residuaries "
      "first.");
}

// Where nothing is applicable the command shows a message and no other figures.
TEST_F(AnswerStateTest, APressWithoutEffectLeavesTheAnswer) {
  case_.TypeEstate("800");
  case_.Type(2, "1");
  Study().Resid_Click();
  Study().AulRadd_Click();
  EXPECT_EQ(Words(), "Answer of Residuaries: final.");
}

TEST_F(AnswerStateTest, ChangedFieldsAreAnotherCase) {
  TypeAul();
  Study().Resid_Click();
  case_.Type(23, "3");
  EXPECT_EQ(Words(), "Fields have changed since the answer of Residuaries.");
  Study().AulRadd_Click();  // of the case before
  EXPECT_EQ(Words(), "Fields have changed since the answer of Aul/ Radd.");
  case_.Type(23, "2");
  EXPECT_EQ(Words(), "Answer of Aul/ Radd: final.");
  case_.Type(NameField, "Aminah");
  EXPECT_EQ(Standing(), AnswerStanding::Final);
  Study().Check1(0).Value = 1;
  EXPECT_EQ(Standing(), AnswerStanding::Changed);
  Study().Check1(0).Value = 0;
  // The switch takes the husband from the record, though his field keeps its 1.
  Study().Combo1.ListIndex = Male;
  Study().Combo1.ListIndex = Female;
  EXPECT_EQ(Standing(), AnswerStanding::Changed);
  Study().Image2_Click();
  EXPECT_EQ(Standing(), AnswerStanding::NoAnswer);
}

/// A text that stops the load, by each of its messages.
struct Refusal {
  int Index;
  const char* Text;
  const char* Reason;
  int Gender = Male;
};

TEST_F(AnswerStateTest, EachMessageThatStopsTheLoadRefusesTheFigures) {
  case_.TypeEstate("800");
  case_.Type(2, "1");
  for (const Refusal& refusal : std::initializer_list<Refusal>{
           {1, "5", "Check number of Wives."},
           {1, "2", "Enter 1 or 0 against Husband's Status.", Female},
           {7, "-1", "Check number of great grand daughters, should be limited reasonably."},
           {13, "2", "For Father write 1 if alive, or 0 if dead."},
           {GrossEstateField, "-1", "No estate wealth for inheritance."},
           {DebtsField, "801", "No estate wealth left for inheritance, after payment of debts."},
           {3, "40000", "Check for high values of Debts/ Wills (Legacies)/ Funeral expenses"},
           {GrossEstateField, "1e999", "Check for high values of Debts/ Wills (Legacies)/ Funeral expenses"},
       }) {
    const std::string before = Study().Text1(refusal.Index).Text;
    Study().Combo1.ListIndex = refusal.Gender;
    for (const auto command :
         {&CaseStudy::Resid_Click, &CaseStudy::FullReport_Click, &CaseStudy::Exec_Click}) {
      case_.Type(refusal.Index, refusal.Text);
      (Study().*command)();
      EXPECT_EQ(Words(), std::string("Refused: these figures are not your case. ") + refusal.Reason);
      case_.Type(refusal.Index, before);
      EXPECT_EQ(Standing(), AnswerStanding::Refused) << "the figures are the same";
      EXPECT_EQ(Words(), "Refused; fields have changed since. Choose Residuaries (F5).");
      (Study().*command)();
      EXPECT_NE(Standing(), AnswerStanding::Refused) << refusal.Reason;
    }
    case_.Type(refusal.Index, refusal.Text);
    Study().Label1_DblClick(2);
    EXPECT_EQ(Standing(), AnswerStanding::Refused) << refusal.Reason;
    case_.Type(refusal.Index, before);
  }
}

// The question about the wills stops no load, whatever is answered; nor does a negative estate.
TEST_F(AnswerStateTest, QuestionAndWarningDoNotRefuse) {
  case_.TypeEstate("800");
  case_.Type(2, "1");
  for (const Answer answer : {Answer::Yes, Answer::No}) {
    case_.Type(WillsField, "500");
    case_.Fakes.Boxes.Answers = {answer};
    Study().Resid_Click();
    EXPECT_EQ(Words(), "Answer of Residuaries: final.");
  }
  EXPECT_EQ(Study().Text1(WillsField).Text.Get(), "267");
  case_.TypeEstate("1000");
  case_.Type(FuneralField, "600");
  case_.Type(DebtsField, "600");
  Study().Resid_Click();
  EXPECT_EQ(Words(), "Answer of Residuaries: the net estate is below 0, nothing is left to divide.");

  case_.Type(WillsField, "900");
  case_.Fakes.Boxes.QuestionsEnd = true;
  Study().Resid_Click();
  EXPECT_EQ(Words(), "Refused: these figures are not your case. The command was not finished.");
}

TEST_F(AnswerStateTest, TheFullReportAppliesWhatIsToBeApplied) {
  const TemporaryFolder folder;
  case_.Fakes.Folders.Folder = folder.Path();
  TypeAul();
  Study().CreateSaveFullReport_Click();
  EXPECT_EQ(Words(), "Answer of Full Report: final.");
  case_.Type(1, "2");
  Study().CreateSaveFullReport_Click();
  EXPECT_EQ(Standing(), AnswerStanding::Refused);

  // Without a file to write, it ends behind its first step.
  case_.Type(1, "1");
  case_.Fakes.Folders.Folder = folder.File("missing");
  Study().CreateSaveFullReport_Click();
  EXPECT_EQ(Standing(), AnswerStanding::ToAdjust);
}

// No figure of the case before reaches the next one, not even through a field that is no number.
TEST_F(AnswerStateTest, AStartedCaseHasNoPast) {
  TypeAul();
  Study().Resid_Click();
  CaseTexts next;
  next.Fields[23] = "two";
  next.Fields[GrossEstateField] = "900";
  next.HeirsConsent = true;
  Study().StartCase(next);
  EXPECT_EQ(Words(), "No answer yet.");
  EXPECT_TRUE(Study().Frame5.Visible);
  EXPECT_FALSE(Study().AulRadd.Visible);
  EXPECT_TRUE(Study().HeirsConsent);
  EXPECT_EQ(Study().Combo1.ListIndex, Male);
  Study().Exec_Click();
  EXPECT_EQ(case_.Record.FullSisters, 0);
  EXPECT_EQ(case_.Record.NetEstate, 900);
  EXPECT_EQ(case_.Record.ExecCount, 2);
}

TEST(Misreadings, NameTheFieldItsTextAndWhatIsRead) {
  ScreenFixture played;
  played.TypeEstate("18,40,000");
  played.Type(FuneralField, "1e6");
  played.Type(DebtsField, "-1234567.5");
  played.Type(WillsField, "99999999999");
  played.Type(1, "one");
  played.Type(2, "2.5");
  played.Type(3, "");
  std::vector<std::string> sentences;
  for (const Message& sentence : played.Study->Misreadings(Grouping::Indian)) {
    sentences.push_back(English(sentence));
  }
  EXPECT_EQ(sentences, (std::vector<std::string>{
                           "Wives one is not read: 0 stays", "Sons 2.5 is read as 2",
                           "Daughters without a text is not read: the figure of the run before stays",
                           "Gross Estate 18,40,000 is read as 18", "Funeral exp. 1e6 is read as 10,00,000",
                           "Debts -1234567.5 is read as -12,34,568",
                           "Will(s) 99999999999 is too large and will be refused"}));
  EXPECT_EQ(Grouped("1234567.25", Grouping::Thousands), "1,234,567.25");
  EXPECT_EQ(Grouped("-123", Grouping::Thousands), "-123");
}

}  // namespace
}  // namespace qismora
