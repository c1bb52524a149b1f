#include <gtest/gtest.h>

#include "support/ScreenFixture.h"

namespace qismora {
namespace {

using testing::ScreenFixture;

TEST(Screen, TheAnimationGoesRoundAndStops) {
  const ScreenFixture played;
  CaseStudy& study = *played.Study;
  const auto shown = [&] {
    int at = -1;
    for (int i = 0; i < 3; ++i) {
      if (study.Image42(i).Visible) at = at < 0 ? i : 9;
    }
    return at;
  };
  EXPECT_EQ(shown(), 0);
  for (const int next : {2, 1, 0, 2}) {
    study.Timer1_Timer();
    EXPECT_EQ(shown(), next);
  }
  EXPECT_EQ(study.Timer1, 1000);
  study.Image42_Click();
  EXPECT_EQ(study.Timer1, 0);
  study.Image42_Click();
  EXPECT_EQ(study.Timer1, 1000);
}

TEST(Screen, EachClearStepsTheColourOfTheNameAndComesBackToGreen) {
  const ScreenFixture played;
  CaseStudy& study = *played.Study;
  const int first = study.Label6.ForeColor;
  study.Image2_Click();
  EXPECT_EQ(study.Label6.ForeColor, first + 500000);
  int clears = 1;
  while (study.Label6.ForeColor != Green) {
    study.Image2_Click();
    ASSERT_LE(study.Label6.ForeColor, 0xFFFFFF);
    ASSERT_LT(++clears, 50);
  }
  EXPECT_GT(clears, 30);
}

TEST(Screen, TheBorderOfTheClearPictureGoesWithAChangedField) {
  ScreenFixture played;
  CaseStudy& study = *played.Study;
  study.Image2_MouseDown();
  study.Image2_Click();
  EXPECT_EQ(study.Image2.BorderStyle, 1) << "every field held 0 already";
  played.Type(2, "3");
  EXPECT_EQ(study.Image2.BorderStyle, 0);
  study.Image2_MouseDown();
  study.Image2_Click();
  EXPECT_EQ(study.Image2.BorderStyle, 0);
}

TEST(Screen, HoveringTakesDecorationsAwayAndTheFrameBringsThemBack) {
  const ScreenFixture played;
  CaseStudy& study = *played.Study;
  study.Image6_MouseMove();
  study.Image4_MouseMove();
  study.Image7_MouseMove();
  study.FullReportxx_MouseMove();
  EXPECT_FALSE(study.Image6(0).Visible || study.Image4(0).Visible || study.Image7(1).Visible);
  EXPECT_EQ(study.FullReportxx.Get(), CaseStudy::Image39);
  study.Frame111_MouseMove();
  EXPECT_TRUE(study.Image6(0).Visible && study.Image4(0).Visible && study.Image7(1).Visible);
  EXPECT_EQ(study.FullReportxx.Get(), CaseStudy::Image40);
  study.FullReportxx_MouseMove();
  study.Frame3_MouseMove();
  EXPECT_EQ(study.FullReportxx.Get(), CaseStudy::Image40);
}

TEST(Screen, TheSavedViewOpensAndEachChoiceIsSaved) {
  const std::string key = std::string(ApplicationTitle) + "/LanguageSetting/LblPressed";
  for (const int view : {0, 1, 2}) {
    ScreenFixture played(view);
    EXPECT_EQ(played.Study->Label4(view).BorderStyle, 1);
    EXPECT_EQ(played.Fakes.Settings.Values[key], std::to_string(view));
    played.Study->Label4_Click(2 - view);
    EXPECT_EQ(played.Fakes.Settings.Values[key], std::to_string(2 - view));
  }
  EXPECT_EQ(ScreenFixture(7).Study->Label4(0).BorderStyle, 1) << "a view that is none is the first";
}

TEST(Screen, ARefusedCountSendsTheFocusToItsField) {
  ScreenFixture played;
  int focused = 0;
  for (const int field : HeirFieldIndexes) {
    played.Study->Text1(field).FocusWanted = [&focused, field] { focused = field; };
  }
  played.Type(2, "101");
  played.Study->Label1_DblClick(3);
  EXPECT_EQ(focused, 2);
  played.Type(1, "5");
  played.Study->Label1_DblClick(3);
  EXPECT_EQ(focused, 1);
  focused = 0;
  played.Type(1, "0");
  played.Type(2, "0");
  played.Type(3, "101");
  played.Study->Label1_DblClick(3);
  EXPECT_EQ(focused, 0);
}

TEST(Screen, BackAndTheCloseButtonShowTheMenu) {
  const ScreenFixture played;
  CaseStudy& study = *played.Study;
  std::string road;
  study.ShowMainMenu = [&] { road += "menu "; };
  study.Hide = [&] { road += "hide "; };
  study.Frame5.Visible = false;
  study.Form_QueryUnload();
  EXPECT_EQ(road, "hide menu ");
  EXPECT_FALSE(study.Frame5.Visible);
  study.Back_Click();
  EXPECT_EQ(road, "hide menu menu hide ");
  EXPECT_TRUE(study.Frame5.Visible);
}

TEST(Screen, ReportsWhatIsReadIfItDiffersFromTheText) {
  const struct {
    int Field;
    const char* Typed;
    const char* Said;
  } rows[] = {{2, "24000", ""},
              {2, " 24000 ", ""},
              {2, "12.50", "Read as 12"},
              {2, "&H10", "Read as 16"},
              {2, "", "This is not a number and is not read: the figure of the run before stays."},
              {2, "4e4", "This is too large and will be refused."},
              {2, "40000", "This is too large and will be refused."},
              {GrossEstateField, "12.50", ""},
              {GrossEstateField, "24,000", "Read as 24"},
              {GrossEstateField, "2.4e4", "Read as 24000"},
              {GrossEstateField, "9e99", "Read as 9E+99"},
              {GrossEstateField, "1e400", "This is too large and will be refused."},
              {DebtsField, "-5", ""},
              {DebtsField, "4e4", "Read as 40000"},
              {DebtsField, "4e9", "This is too large and will be refused."}};
  for (const auto& row : rows) {
    ScreenFixture played;
    played.Type(row.Field, row.Typed);
    EXPECT_EQ(played.Study->MisreadingOf(row.Field), row.Said) << row.Field << " " << row.Typed;
  }
}

// A refused estate is lost, and a switch of gender takes the spouse away.
TEST(Screen, ReportsWhichFigureIsKept) {
  ScreenFixture played;
  played.Type(1, "3");
  played.Study->Label1_DblClick(3);
  const auto stays = [&](int field) {
    played.Type(field, "none");
    return played.Study->MisreadingOf(field);
  };
  EXPECT_EQ(stays(GrossEstateField), "This is not a number and is not read: 18600 stays.");
  EXPECT_EQ(stays(1), "This is not a number and is not read: 3 stays.");
  played.Type(DebtsField, "99999");
  played.Study->Label1_DblClick(3);
  EXPECT_EQ(stays(GrossEstateField), "This is not a number and is not read: 0 stays.");
  played.Study->Combo1.ListIndex = Female;
  played.Study->Combo1.ListIndex = Male;
  EXPECT_EQ(stays(1), "This is not a number and is not read: 0 stays.");
}

}  // namespace
}  // namespace qismora
