#include "faraid/Fraction.h"

#include <gtest/gtest.h>

namespace faraid {
namespace {

constexpr std::int64_t largest = std::numeric_limits<std::int64_t>::max();

TEST(Fraction, IsReducedAndKeepsItsSign) {
  EXPECT_EQ(Fraction(6, 8), Fraction(3, 4));
  EXPECT_EQ(Fraction(1, 6) - Fraction(2, 3), Fraction(-1, 2));
  EXPECT_EQ(Fraction(0, 7).Den(), 1);
  EXPECT_EQ(Fraction(-4, 6) * Fraction(3, 2), -1);
  EXPECT_LT(Fraction(-1, 12), 0);
}

TEST(Fraction, FailsOnOverflow) {
  const Fraction tiny(1, largest);
  EXPECT_THROW(tiny * tiny, std::overflow_error);
  EXPECT_THROW(tiny + Fraction(1, largest - 1), std::overflow_error);
  EXPECT_THROW(Fraction(largest) + 1, std::overflow_error);
  EXPECT_THROW(Fraction(-largest) - 1, std::overflow_error);
  EXPECT_THROW(Fraction(std::numeric_limits<std::int64_t>::min(), 3), std::overflow_error);
  EXPECT_THROW(Fraction(largest) / Fraction(1, 2), std::overflow_error);
}

TEST(Fraction, FitsIfOnlyIntermediateResultsAreLarge) {
  EXPECT_EQ(Fraction(largest, 3) * Fraction(3, largest), 1);
  EXPECT_LT(Fraction(largest - 2, largest - 1), Fraction(largest - 1, largest));
}

TEST(Fraction, RefusesADenominatorOfZero) {
  EXPECT_THROW(Fraction(1, 0), std::domain_error);
  EXPECT_THROW(Fraction(1, -2), std::domain_error);
  EXPECT_THROW(Fraction(1, 2) / 0, std::domain_error);
}

}  // namespace
}  // namespace faraid
