#pragma once

#include <compare>
#include <cstdint>
#include <limits>
#include <numeric>
#include <stdexcept>

namespace faraid {

/// An exact fraction, always reduced, with a denominator above 0. An operation whose figures do not fit 64
/// bits throws std::overflow_error and never wraps.
class Fraction {
 public:
  constexpr Fraction() = default;
  constexpr Fraction(std::int64_t whole) : num_(Fitting(whole)) {}
  /// A denominator that is not above 0 throws std::domain_error.
  constexpr Fraction(std::int64_t num, std::int64_t den) : num_(Fitting(num)), den_(den) {
    if (den <= 0) throw std::domain_error("a fraction needs a denominator above 0");
    const std::int64_t common = std::gcd(num_, den_);
    num_ /= common;
    den_ /= common;
  }

  constexpr std::int64_t Num() const { return num_; }
  constexpr std::int64_t Den() const { return den_; }

  constexpr bool operator==(const Fraction&) const = default;
  constexpr std::strong_ordering operator<=>(const Fraction& other) const {
    __extension__ using Wide = __int128;
    return Wide{num_} * other.den_ <=> Wide{other.num_} * den_;
  }

  friend constexpr Fraction operator+(const Fraction& a, const Fraction& b) {
    const std::int64_t common = std::gcd(a.den_, b.den_);
    const std::int64_t num = Sum(Product(a.num_, b.den_ / common), Product(b.num_, a.den_ / common));
    return {num, Product(a.den_ / common, b.den_)};
  }
  friend constexpr Fraction operator-(const Fraction& a, const Fraction& b) {
    return a + Fraction(-b.num_, b.den_);
  }
  /// Reduced crosswise before the multiplication, so that it overflows as late as possible.
  friend constexpr Fraction operator*(const Fraction& a, const Fraction& b) {
    const std::int64_t first = std::gcd(a.num_, b.den_);
    const std::int64_t second = std::gcd(b.num_, a.den_);
    Fraction product;
    product.num_ = Fitting(Product(a.num_ / first, b.num_ / second));
    product.den_ = Product(a.den_ / second, b.den_ / first);
    return product;
  }
  /// A divisor that is not above 0 throws std::domain_error.
  friend constexpr Fraction operator/(const Fraction& a, const Fraction& b) {
    return a * Fraction(b.den_, b.num_);
  }

 private:
  [[noreturn]] static void Overflow() { throw std::overflow_error("a fraction does not fit 64 bits"); }

  // The lowest 64-bit number has no positive counterpart, so it is not allowed.
  static constexpr std::int64_t Fitting(std::int64_t number) {
    if (number == std::numeric_limits<std::int64_t>::min()) Overflow();
    return number;
  }
  static constexpr std::int64_t Sum(std::int64_t a, std::int64_t b) {
    std::int64_t sum = 0;
    if (__builtin_add_overflow(a, b, &sum)) Overflow();
    return sum;
  }
  static constexpr std::int64_t Product(std::int64_t a, std::int64_t b) {
    std::int64_t product = 0;
    if (__builtin_mul_overflow(a, b, &product)) Overflow();
    return product;
  }

  std::int64_t num_ = 0;
  std::int64_t den_ = 1;
};

}  // namespace faraid
