#include <gtest/gtest.h>

#include <string>

#include "base/NumberText.h"

namespace qismora {
namespace {

// The text is no number.
constexpr int none = -1;

struct Row {
  std::string Text;
  double Prefix;
  double Strict;
};

const Row rows[] = {
    // plain numbers, blanks and signs
    {"0", 0, 0},
    {"42", 42, 42},
    {"  42  ", 42, 42},
    {"+4", 4, 4},
    {"-4", -4, -4},
    {" -4 ", -4, -4},
    {"4-", 4, none},
    {"4 2", 4, none},
    {"007", 7, 7},
    // followed by something else
    {"2x", 2, none},
    {"5\t", 5, none},
    {std::string("5\0", 2), 5, none},
    // separators
    {"1,000", 1, 1000},
    {"1,,0,", 1, 10},
    {"1,000.5", 1, 1000.5},
    {"1,.5", 1, 1.5},
    {"1.5,0", 1.5, none},
    {"1,0e2", 1, 1000},
    {"1e1,0", 10, none},
    // the point
    {".5", 0.5, 0.5},
    {"5.", 5, 5},
    {"-.5", -0.5, -0.5},
    {"1.2.3", 1.2, none},
    // the exponent
    {"1e3", 1000, 1000},
    {"1E+3", 1000, 1000},
    {"1e-3", 0.001, 0.001},
    {"5.e1", 50, 50},
    {"1e", 1, none},
    {"1e+", 1, none},
    {"1e3.5", 1000, none},
    {"1d3", 1, none},
    // hexadecimal and octal
    {"&H10", 16, 16},
    {"&hfF", 255, 255},
    {" &O17 ", 15, 15},
    {"&o17", 15, 15},
    {"&O18", 1, none},
    {"&HFFFF", 65535, 65535},
    {"&H1,0", 1, none},
    {"&HFFFFFFFFFF", 1099511627775.0, 1099511627775.0},
    // very small
    {"1e-400", 0, 0},
    {"0e999999999999", 0, 0},
    {"-0", 0, 0}};

const std::string noNumbers[] = {"- 4", "--4",  "",    " ",       "+",   "abc", "inf",
                                 "nan", "0x10", "\t5", "\u00A05", "٣",   "五",  ",100",
                                 ".",   "e3",   "&H",  "&",       "&HG", "&O8", "-&H10"};

TEST(NumberText, WhatDoesNotBeginWithANumberIsReadAsNothing) {
  for (const std::string& text : noNumbers) {
    EXPECT_FALSE(IsNumber(text)) << text;
    EXPECT_EQ(ParsePrefix(text).Value(), 0) << text;
    EXPECT_EQ(ReadNumber(text), std::nullopt) << text;
    EXPECT_THROW(ParseStrict(text), Failure) << text;
  }
}

TEST(NumberText, IsReadAsAPrefixAndAsAWhole) {
  for (const Row& row : rows) {
    const bool isNumber = row.Strict != none;
    EXPECT_EQ(IsNumber(row.Text), isNumber) << row.Text;
    EXPECT_EQ(ParsePrefix(row.Text).Value(), row.Prefix) << row.Text;
    EXPECT_EQ(ReadNumber(row.Text), isNumber ? std::optional(ParsePrefix(row.Text)) : std::nullopt)
        << row.Text;
    if (isNumber) {
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
                               "-1e+309",
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
