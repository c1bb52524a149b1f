#include "base/Numbers.h"

#include <gtest/gtest.h>

namespace qismora {
namespace {

/// The number of the failure that the action raises, or 0.
template <class Action>
int FailureOf(Action action) {
  try {
    static_cast<void>(action());
  } catch (const Failure& failure) {
    return failure.Number;
  }
  return 0;
}

TEST(Numbers, WholeTypesReachTheEdgesOfTheirRangeAndFailBeyond) {
  EXPECT_EQ(Integer(32766) + Integer(1), 32767);
  EXPECT_EQ(Integer(128) * Integer(-256), -32768);
  EXPECT_EQ(Long(-2147483647) - Long(1), Long(-2147483648LL));
  EXPECT_EQ(Long(46340) * Long(46340), 2147395600);
  EXPECT_EQ(FailureOf([] { return Integer(32768); }), Overflow);
  EXPECT_EQ(FailureOf([] { return Integer(32767) + Integer(1); }), Overflow);
  EXPECT_EQ(FailureOf([] { return Integer(-32768) - Integer(1); }), Overflow);
  EXPECT_EQ(FailureOf([] { return -Integer(-32768); }), Overflow);
  EXPECT_EQ(FailureOf([] { return Integer(182) * Integer(182); }), Overflow);
  EXPECT_EQ(FailureOf([] { return Integer(1) * 40000; }), Overflow);
  EXPECT_EQ(FailureOf([] { return Long(2147483647) + Long(1); }), Overflow);
  EXPECT_EQ(FailureOf([] { return Long(65536) * Long(65536); }), Overflow);
  EXPECT_EQ(FailureOf([] { return ToInteger(Long(32768)); }), Overflow);
}

TEST(Numbers, AFailedStepLeavesTheNumberAsItWas) {
  Integer number(32000);
  EXPECT_EQ(FailureOf([&] { return number += Integer(1000); }), Overflow);
  EXPECT_EQ(number, 32000);
}

TEST(Numbers, QuotientsAreRealNumbers) {
  EXPECT_EQ((Integer(1) / Integer(4)).Value(), 0.25);
  EXPECT_EQ((Long(7) / 2).Value(), 3.5);
  EXPECT_EQ(FailureOf([] { return Integer(1) / Integer(0); }), DivisionByZero);
}

TEST(Numbers, ADoubleIsAlwaysANumber) {
  EXPECT_EQ(FailureOf([] { return Double(1e308) * 10; }), Overflow);
  EXPECT_EQ(FailureOf([] { return Double(1e308) + Double(1e308); }), Overflow);
  EXPECT_EQ(FailureOf([] { return Double(1e308) / 1e-10; }), Overflow);
  EXPECT_EQ(FailureOf([] { return Double(5) / 0; }), DivisionByZero);
  EXPECT_EQ(FailureOf([] { return Double(5) / -0.0; }), DivisionByZero);
  EXPECT_EQ(FailureOf([] { return Double(std::nan("")); }), Overflow);
}

TEST(Numbers, ATieRoundsToTheEvenNeighbour) {
  const std::pair<double, int> rows[] = {{0.5, 0},
                                         {1.5, 2},
                                         {2.5, 2},
                                         {-0.5, 0},
                                         {-1.5, -2},
                                         {-2.5, -2},
                                         {0.49999999999999994, 0},
                                         {32767.49, 32767},
                                         {-32768.5, -32768}};
  for (const auto& [value, rounded] : rows) EXPECT_EQ(RoundTo<Integer>(value), rounded) << value;
  EXPECT_EQ(FailureOf([] { return RoundTo<Integer>(32767.5); }), Overflow);
  EXPECT_EQ(FailureOf([] { return RoundTo<Integer>(-32769); }), Overflow);
  EXPECT_EQ(RoundTo<Long>(2147483647.4), 2147483647);
  EXPECT_EQ(FailureOf([] { return RoundTo<Long>(2147483647.5); }), Overflow);
  EXPECT_EQ(FailureOf([] { return RoundTo<Long>(-1e300); }), Overflow);
}

}  // namespace
}  // namespace qismora
