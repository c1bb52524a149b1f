#include "base/Text.h"

#include <gtest/gtest.h>

#include "base/Dates.h"

namespace qismora {
namespace {

TEST(Text, AmountsAreRoundedAwayFromZeroInTheTextOnly) {
  const std::pair<double, const char*> rows[] = {{0, "0"},
                                                 {-0.0, "0"},
                                                 {0.5, "1"},
                                                 {-0.5, "-1"},
                                                 {1.5, "2"},
                                                 {2.5, "3"},
                                                 {-2.5, "-3"},
                                                 {0.49999999999999994, "0"},
                                                 {-0.3, "-0"},
                                                 {1234567.4, "1234567"},
                                                 {1e22, "10000000000000000000000"},
                                                 {-1e20, "-100000000000000000000"}};
  for (const auto& [amount, words] : rows) EXPECT_EQ(F(amount), words) << amount;
  EXPECT_EQ(F(1.7976931348623157e308).size(), 309U);
}

TEST(Text, TheWidestFiguresFit) {
  const Fraction widest = {Integer(-32768), Integer(-32768)};
  EXPECT_EQ(Join(widest, " ", Long(-2147483648LL)), "(-32768/-32768) -2147483648");
  EXPECT_EQ(F(3000, {Integer(1), Integer(8)}), "3000  (1/8)");
  EXPECT_EQ(F(-1.7976931348623157e308, widest).size(), 327U);
}

TEST(Text, GeneralNumbersHaveFifteenDigits) {
  for (const char* text : {"0", "18600", "0.1", "1000.5", "999999999999999", "1E+15", "0.0001", "1E-05",
                           "1.5E-05", "1E+100", "-2.5"}) {
    EXPECT_EQ(GeneralNumber(std::stod(text)), text);
  }
  EXPECT_EQ(GeneralNumber(-0.0), "0");
  EXPECT_EQ(GeneralNumber(1.0 / 3), "0.333333333333333");
  EXPECT_EQ(GeneralNumber(1234567890123456.0), "1.23456789012346E+15");
  EXPECT_EQ(GeneralNumber(0.1 + 0.2), "0.3");
}

TEST(Text, CaseFollowsUnicode) {
  EXPECT_EQ(UpperCase("Abdullah bin Omar"), "ABDULLAH BIN OMAR");
  EXPECT_EQ(UpperCase("éß ﬁn"), "ÉSS FIN");
  EXPECT_EQ(LowerCase("ÀÉ ΑΒΓ ЖЩ"), "àé αβγ жщ");
  EXPECT_EQ(UpperCase("عبد الله"), "عبد الله");
  EXPECT_EQ(UpperCase("𐐨"), "𐐀");
  EXPECT_EQ(LowerCase("A\xFF"
                      "B\xE2\x82"),
            "a\xFF"
            "b\xE2\x82")
      << "what is no UTF-8 stays";
}

TEST(Text, TheEndIsCutByCharacters) {
  EXPECT_EQ(WithoutEnd("abc©\r\n", 3), "abc");
  EXPECT_EQ(WithoutEnd("©", 1), "");
  EXPECT_THROW(WithoutEnd("©©", 3), Failure);
  EXPECT_THROW(WithoutEnd("", 1), Failure);
}

TEST(Text, TheFooterHasItsLength) {
  const DateTime when = {2024, 3, 5, 14, 7, 9};
  EXPECT_EQ(DateText(when), "05/03/2024");
  EXPECT_EQ(TimeText(when), "14:07:09");
  EXPECT_EQ(WithoutEnd(Join("x", GeneratedBy(when), CRLF, CRLF), FooterLength), "x");
  EXPECT_EQ(WithoutEnd(Join("x", GeneratedBy({999, 1, 2, 3, 4, 5}), CRLF, CRLF), FooterLength), "x");
}

}  // namespace
}  // namespace qismora
