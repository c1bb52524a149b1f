#include <gtest/gtest.h>

#include <string>

#include "base/NumberText.h"

namespace qismora {
namespace {

constexpr int none = -1;

/// The result of each reading of a text. A strict value of none is the type failure.
struct Row {
  std::string Text;
  bool IsNumber;
  double Prefix;
  double Strict;
};

const Row rows[] = {
    // plain numbers, blanks and signs
    {"0", true, 0, 0},
    {"42", true, 42, 42},
    {"  42  ", true, 42, 42},
    {"+4", true, 4, 4},
    {"-4", true, -4, -4},
    {" -4 ", true, -4, -4},
    {"- 4", false, 0, none},
    {"--4", false, 0, none},
    {"4-", false, 4, none},
    {"4 2", false, 4, none},
    {"007", true, 7, 7},
    // nothing, and no number
    {"", false, 0, none},
    {" ", false, 0, none},
    {"+", false, 0, none},
    {"abc", false, 0, none},
    {"2x", false, 2, none},
    {"inf", false, 0, none},
    {"nan", false, 0, none},
    {"0x10", false, 0, none},
    {"\t5", false, 0, none},
    {"5\t", false, 5, none},
    {"\xC2\xA0"
     "5",
     false, 0, none},
    {"٣", false, 0, none},
    {"五", false, 0, none},
    {std::string("5\0", 2), false, 5, none},
    // separators
    {"1,000", true, 1, 1000},
    {"1,,0,", true, 1, 10},
    {"1,000.5", true, 1, 1000.5},
    {"1,.5", true, 1, 1.5},
    {",100", false, 0, none},
    {"1.5,0", false, 1.5, none},
    {"1,0e2", true, 1, 1000},
    {"1e1,0", false, 10, none},
    // the point
    {".5", true, 0.5, 0.5},
    {"5.", true, 5, 5},
    {".", false, 0, none},
    {"-.5", true, -0.5, -0.5},
    {"1.2.3", false, 1.2, none},
    // the exponent
    {"1e3", true, 1000, 1000},
    {"1E+3", true, 1000, 1000},
    {"1e-3", true, 0.001, 0.001},
    {"5.e1", true, 50, 50},
    {"1e", false, 1, none},
    {"1e+", false, 1, none},
    {"1e3.5", false, 1000, none},
    {"e3", false, 0, none},
    {"1d3", false, 1, none},
    // hexadecimal and octal
    {"&H10", true, 16, 16},
    {"&hfF", true, 255, 255},
    {" &O17 ", true, 15, 15},
    {"&o17", true, 15, 15},
    {"&H", false, 0, none},
    {"&", false, 0, none},
    {"&HG", false, 0, none},
    {"&O8", false, 0, none},
    {"&O18", false, 1, none},
    {"-&H10", false, 0, none},
    {"&HFFFF", true, 65535, 65535},
    {"&H1,0", false, 1, none},
    {"&HFFFFFFFFFF", true, 1099511627775.0, 1099511627775.0},
    // very small
    {"1e-400", true, 0, 0},
    {"0e999999999999", true, 0, 0},
    {"-0", true, 0, 0},
};

TEST(NumberText, EachReadingTakesWhatItShould) {
  for (const Row& row : rows) {
    EXPECT_EQ(IsNumber(row.Text), row.IsNumber) << row.Text;
    EXPECT_EQ(ParsePrefix(row.Text).Value(), row.Prefix) << row.Text;
    EXPECT_EQ(ReadNumber(row.Text), row.IsNumber ? std::optional(ParsePrefix(row.Text)) : std::nullopt)
        << row.Text;
    if (row.IsNumber) {
      EXPECT_EQ(ParseStrict(row.Text).Value(), row.Strict) << row.Text;
    } else {
      EXPECT_THROW(ParseStrict(row.Text), Failure) << row.Text;
    }
  }
}

TEST(NumberText, LongDigitsKeepTheirValue) {
  EXPECT_EQ(ParsePrefix("1" + std::string(300, '0')).Value(), 1e300);
  EXPECT_EQ(ParsePrefix("0." + std::string(400, '0') + "1e401").Value(), 1.0);
  EXPECT_EQ(ParsePrefix("0." + std::string(400, '0') + "1").Value(), 0.0);
}

TEST(NumberText, ANumberBeyondTheRangeIsAnOverflow) {
  const std::string texts[] = {"1e309",
                               "-1e309",
                               "1" + std::string(400, '0'),
                               "1e99999999999999999999",
                               "&H" + std::string(300, 'F'),
                               "0." + std::string(10, '0') + "1e400"};
  for (const std::string& text : texts) {
    EXPECT_TRUE(IsNumber(text)) << text;
    try {
      ParsePrefix(text);
      ADD_FAILURE() << text;
    } catch (const Failure& failure) {
      EXPECT_EQ(failure.Number, Overflow) << text;
    }
  }
}

}  // namespace
}  // namespace qismora
