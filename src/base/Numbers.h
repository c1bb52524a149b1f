#pragma once

#include <cmath>
#include <compare>
#include <concepts>
#include <cstdint>
#include <limits>

#include "base/Failure.h"

namespace qismora {

/// A signed whole number of fixed width. A result beyond its range throws Failure(Overflow)
/// and never wraps.
template <std::signed_integral Stored>
class Whole {
 public:
  constexpr Whole() = default;
  constexpr explicit Whole(std::int64_t value) : value_(Checked(value)) {}

  constexpr std::int64_t Value() const { return value_; }

  Whole& operator+=(Whole other) { return *this = *this + other; }
  Whole& operator-=(Whole other) { return *this = *this - other; }
  Whole& operator*=(Whole other) { return *this = *this * other; }

  friend constexpr Whole operator-(Whole a) { return Whole(-a.Value()); }
  friend constexpr Whole operator+(Whole a, Whole b) { return Whole(a.Value() + b.Value()); }
  friend constexpr Whole operator-(Whole a, Whole b) { return Whole(a.Value() - b.Value()); }
  friend constexpr Whole operator*(Whole a, Whole b) { return Whole(a.Value() * b.Value()); }

  // A literal has the width of the other operand: 2 * Sons is an Integer.
  friend constexpr Whole operator+(Whole a, int b) { return a + Whole(b); }
  friend constexpr Whole operator-(Whole a, int b) { return a - Whole(b); }
  friend constexpr Whole operator*(Whole a, int b) { return a * Whole(b); }
  friend constexpr Whole operator*(int a, Whole b) { return Whole(a) * b; }

  friend constexpr bool operator==(Whole, Whole) = default;
  friend constexpr auto operator<=>(Whole, Whole) = default;
  friend constexpr bool operator==(Whole a, std::int64_t b) { return a.Value() == b; }
  friend constexpr auto operator<=>(Whole a, std::int64_t b) { return a.Value() <=> b; }

 private:
  static constexpr Stored Checked(std::int64_t value) {
    if (value < std::numeric_limits<Stored>::min() || value > std::numeric_limits<Stored>::max()) {
      throw Failure(Overflow);
    }
    return static_cast<Stored>(value);
  }

  Stored value_ = 0;
};

// The widths are fixed like the rules: beyond them a command fails, as users meet it in very large families
// and estates (docs/peculiarities.md).
using Integer = Whole<std::int16_t>;
using Long = Whole<std::int32_t>;

/// Widens an Integer for arithmetic with a Long.
constexpr Long ToLong(Integer value) { return Long(value.Value()); }
/// A Long as an Integer. Throws Failure(Overflow) beyond its range.
constexpr Integer ToInteger(Long value) { return Integer(value.Value()); }

/// A 64-bit floating point number that is always finite: division by zero and a result beyond the range are
/// failures.
class Double {
 public:
  constexpr Double() = default;
  constexpr Double(double value) : value_(Checked(value)) {}
  constexpr Double(int value) : value_(value) {}
  template <std::signed_integral Stored>
  constexpr Double(Whole<Stored> value) : value_(static_cast<double>(value.Value())) {}

  constexpr double Value() const { return value_; }

  friend constexpr Double operator+(Double a, Double b) { return a.value_ + b.value_; }
  friend constexpr Double operator-(Double a, Double b) { return a.value_ - b.value_; }
  friend constexpr Double operator*(Double a, Double b) { return a.value_ * b.value_; }
  friend constexpr Double operator/(Double a, Double b) {
    if (b.value_ == 0.0) throw Failure(DivisionByZero);
    return a.value_ / b.value_;
  }
  Double& operator+=(Double other) { return *this = *this + other; }

  friend constexpr bool operator==(Double a, Double b) { return a.value_ == b.value_; }
  friend constexpr auto operator<=>(Double a, Double b) { return a.value_ <=> b.value_; }

 private:
  static constexpr double Checked(double value) {
    constexpr double largest = std::numeric_limits<double>::max();
    if (!(value >= -largest && value <= largest)) throw Failure(Overflow);
    return value;
  }

  double value_ = 0.0;
};

/// The quotient of two whole numbers is a real number.
template <std::signed_integral Stored>
constexpr Double operator/(Whole<Stored> a, Whole<Stored> b) {
  return Double(a) / Double(b);
}
template <std::signed_integral Stored>
constexpr Double operator/(Whole<Stored> a, int b) {
  return Double(a) / Double(b);
}

/// The nearest whole number; of two equally near ones the even one (2.5 gives 2, 3.5 gives 4). Throws
/// Failure(Overflow) beyond the range of the type.
template <class Number>
Number RoundTo(Double value) {
  const double whole = std::nearbyint(value.Value());
  if (!(std::abs(whole) < 0x1p62)) throw Failure(Overflow);
  return Number(static_cast<std::int64_t>(whole));
}

/// A fraction of the estate, never reduced.
struct Fraction {
  Integer Num;
  Integer Den;
};

static_assert(Integer(32767) == 32767 && Integer(-32768) == -32768);
static_assert(Long(2147483647) == 2147483647 && Long(-2147483648LL) == -2147483648LL);

}  // namespace qismora
