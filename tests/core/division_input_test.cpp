#include <gtest/gtest.h>

#include "casefile/Captions.h"
#include "casefile/HeirFields.h"
#include "division/DivisionInput.h"
#include "support/ScreenFixture.h"

namespace qismora {
namespace {

TEST(ReadAmount, ReadsPlainAndGroupedDecimals) {
  const std::pair<const char*, std::int64_t> amounts[] = {
      {"0", 0},
      {" 2500.5 ", 250050},
      {"007.07", 707},
      {"0000000000000000000001", 100},
      {"999999999999999.99", faraid::MostHundredths},
      {"1,234", 123400},
      {"12,345,678.9", 1234567890},
      {"1,23,45,678", 1234567800},
      {"12,34,567.89", 123456789},
      {"123,456", 12345600},
      {"0,001", 100},
  };
  for (const auto& [text, hundredths] : amounts) {
    EXPECT_EQ(ReadAmount(text).Fault, FieldFault::None) << text;
    EXPECT_EQ(ReadAmount(text).Value, hundredths) << text;
  }
}

TEST(ReadAmount, NamesTheFirstFault) {
  for (const char* text :
       {"",         " ",      ".",       ".5",     "5.",       "-1",         "+1",       "1 2",
        "1e3",      "12,34",  ",123",    "1,2345", "1234,567", "123,45,678", "1,234,56", "1,23,456,789",
        "1,,234",   "1,234,", "1.5,000", "1.2.3",  "\t1",      "1\r",        "\u0661",   "1.a",
        "1,23,4567"}) {
    EXPECT_EQ(ReadAmount(text).Fault, FieldFault::NotAnAmount) << text;
  }
  for (const char* text : {"1.000", "0.125", "99999999999999999999.123"}) {
    EXPECT_EQ(ReadAmount(text).Fault, FieldFault::TooManyDecimals) << text;
  }
  for (const char* text : {"1000000000000000", "1,000,000,000,000,000", "99999999999999999999999999999.9"}) {
    EXPECT_EQ(ReadAmount(text).Fault, FieldFault::TooMuch) << text;
  }
}

TEST(ReadHeads, ReadsDigitsAloneUpToTheMost) {
  EXPECT_EQ(ReadHeads(" 0000000000000000000100 ", 100).Value, 100);
  for (const char* text : {"101", "1000", "18446744073709551617", "4294967296"}) {
    EXPECT_EQ(ReadHeads(text, 100).Fault, FieldFault::TooMany) << text;
  }
  for (const char* text : {"", "-0", "+1", "1.0", "1,000", "1 1", "\u0661", "0x1"}) {
    EXPECT_EQ(ReadHeads(text, 100).Fault, FieldFault::NotWhole) << text;
  }
}

TEST(DivisionInput, KnowsTheCaptionsOfTheScreen) {
  const testing::ScreenFixture played;
  for (const int gender : {Male, Female}) {
    played.Study->Combo1.ListIndex = gender;
    const faraid::Kind otherSpouse = gender == Male ? faraid::Kind::Husband : faraid::Kind::Wives;
    for (const HeirField& field : HeirFields) {
      if (field.Heir == otherSpouse) continue;
      EXPECT_EQ(field.Caption, played.Study->Label1(field.Index).Caption.Get());
      EXPECT_EQ(CaptionOf(field.Heir), field.Caption);
    }
  }
  for (int i = 0; i < played.Study->Check1.Size; ++i) {
    EXPECT_EQ(CaptionOf(ClassIIKind(i)), played.Study->Check1(i).Caption.Get());
  }
}

TEST(DivisionInput, ReadsEachFieldIntoItsOwnKind) {
  testing::ScreenFixture played;
  played.Study->Combo1.ListIndex = Female;
  for (const HeirField& field : HeirFields) {
    if (field.Heir == faraid::Kind::Wives) continue;
    played.Type(field.Index, "1");
    const faraid::Family family = ReadDivisionInput(ReadScreen(*played.Study, false)).Family;
    EXPECT_EQ(family.Alive(), faraid::KindSet(field.Heir)) << field.Caption;
    played.Type(field.Index, "0");
  }
}

}  // namespace
}  // namespace qismora
