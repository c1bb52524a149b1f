#include "base/NumberText.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <string>

namespace qismora {

namespace {

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

/// The text without its leading blanks.
std::string_view WithoutBlanks(std::string_view text) {
  return text.substr(std::min(text.find_first_not_of(' '), text.size()));
}

/// The base of the prefix &H or &O; 0 without one.
int AnnouncedBase(std::string_view text) {
  if (text.size() < 2 || text[0] != '&') return 0;
  if (text[1] == 'H' || text[1] == 'h') return 16;
  if (text[1] == 'O' || text[1] == 'o') return 8;
  return 0;
}

bool IsDigitOf(int base, char c) {
  const char lower = static_cast<char>(c | 0x20);
  if (base == 16 && lower >= 'a' && lower <= 'f') return true;
  return IsDigit(c) && c - '0' < base;
}

/// How many characters at the start of the text form a number; 0 if it does not start with one.
std::size_t NumberLength(std::string_view text, bool withCommas) {
  std::size_t at = 0;
  const auto here = [&](std::string_view any) { return at < text.size() && any.find(text[at]) != any.npos; };
  const auto digits = [&] {
    const std::size_t first = at;
    while (at < text.size() && IsDigit(text[at])) ++at;
    return at > first;
  };

  if (const int base = AnnouncedBase(text); base != 0) {
    for (at = 2; at < text.size() && IsDigitOf(base, text[at]);) ++at;
    return at > 2 ? at : 0;
  }
  if (here("+-")) ++at;
  bool any = digits();
  while (any && withCommas && here("0123456789,")) ++at;
  if (here(".")) {
    ++at;
    any = digits() || any;
  }
  if (!any) return 0;
  // The E of an exponent belongs to the number only if a digit follows.
  const std::size_t end = at;
  if (here("eE")) {
    ++at;
    if (here("+-")) ++at;
    if (digits()) return at;
  }
  return end;
}

/// Whether the first significant digit comes after the decimal point, so that the number is below one.
bool IsBelowOne(std::string_view digits) {
  const std::size_t exponentAt = std::min(digits.find_first_of("eE"), digits.size());
  const std::string_view mantissa = digits.substr(0, exponentAt);
  const auto point = static_cast<std::int64_t>(std::min(mantissa.find('.'), mantissa.size()));
  const auto first = static_cast<std::int64_t>(mantissa.find_first_of("123456789"));
  std::string_view exponent = digits.substr(std::min(exponentAt + 1, digits.size()));
  const bool negative = exponent.starts_with('-');
  exponent.remove_prefix(exponent.starts_with('-') || exponent.starts_with('+') ? 1 : 0);
  std::int64_t power = 0;
  if (std::from_chars(exponent.data(), exponent.data() + exponent.size(), power).ec != std::errc{} &&
      !exponent.empty()) {
    return negative;
  }
  return point - first + (negative ? -power : power) <= 0;
}

/// The value of a text of a few plain digits, as most fields have. This is the fast case.
std::optional<Double> PlainDigits(std::string_view text) {
  constexpr std::size_t mostExactDigits = 15;
  if (text.empty() || text.size() > mostExactDigits) return std::nullopt;
  std::int64_t whole = 0;
  for (const char c : text) {
    if (!IsDigit(c)) return std::nullopt;
    whole = whole * 10 + (c - '0');
  }
  return static_cast<double>(whole);
}

/// The value of a text that forms a number without separators.
Double NumberValue(std::string_view digits) {
  double value = 0.0;
  if (const int base = AnnouncedBase(digits); base != 0) {
    for (const char c : digits.substr(2))
      value = value * base + (IsDigit(c) ? c - '0' : (c | 0x20) - 'a' + 10);
    return value;
  }
  if (digits.starts_with('+')) digits.remove_prefix(1);
  const auto result = std::from_chars(digits.data(), digits.data() + digits.size(), value);
  if (result.ec == std::errc::result_out_of_range && !IsBelowOne(digits)) throw Failure(Overflow);
  return value;
}

}  // namespace

bool IsNumber(std::string_view text) {
  text = WithoutBlanks(text);
  const std::size_t length = NumberLength(text, true);
  return length > 0 && WithoutBlanks(text.substr(length)).empty();
}

std::optional<Double> ReadNumber(std::string_view text) {
  const std::optional<Double> plain = PlainDigits(text);
  return plain || !IsNumber(text) ? plain : ParsePrefix(text);
}

Double ParsePrefix(std::string_view text) {
  if (const std::optional<Double> plain = PlainDigits(text)) return *plain;
  text = WithoutBlanks(text);
  const std::size_t length = NumberLength(text, false);
  return length > 0 ? NumberValue(text.substr(0, length)) : 0;
}

Double ParseStrict(std::string_view text) {
  if (const std::optional<Double> plain = PlainDigits(text)) return *plain;
  if (!IsNumber(text)) throw Failure(TypeMismatch);
  std::string digits(WithoutBlanks(text));
  std::erase(digits, ',');
  return NumberValue(std::string_view(digits).substr(0, NumberLength(digits, false)));
}

}  // namespace qismora
