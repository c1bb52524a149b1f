#include "base/Text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <locale>
#include <span>
#include <stdexcept>

#include "base/Encoding.h"

namespace qismora {

namespace {

// Each writes its argument from the given place on and returns the place after it.

char* PutWhole(char* end, std::int64_t number) {
  constexpr std::ptrdiff_t mostCharacters = 20;
  return std::to_chars(end, end + mostCharacters, number).ptr;
}

char* PutFraction(char* end, Fraction fraction) {
  *end++ = '(';
  end = PutWhole(end, fraction.Num.Value());
  *end++ = '/';
  end = PutWhole(end, fraction.Den.Value());
  *end++ = ')';
  return end;
}

/// The longest amount has a sign and 309 digits.
using AmountDigits = std::array<char, 352>;

char* PutAmount(char* end, Double amount) {
  if (amount < 0) *end++ = '-';
  const double whole = std::abs(std::round(amount.Value()));
  // Whole numbers up to here are exact, and written faster as such.
  constexpr double largestExact = 0x1p53;
  if (whole < largestExact) return PutWhole(end, static_cast<std::int64_t>(whole));
  constexpr std::ptrdiff_t mostDigits = 309;
  return std::to_chars(end, end + mostDigits, whole, std::chars_format::fixed, 0).ptr;
}

}  // namespace

Piece::Piece(int number) : words_(digits_, PutWhole(digits_, number)) {}

Piece::Piece(Fraction fraction) : words_(digits_, PutFraction(digits_, fraction)) {}

void PutPieces(std::string& text, std::size_t from, std::initializer_list<Piece> pieces) {
  std::size_t size = from;
  for (const Piece& piece : pieces) size += piece.Words().size();
  text.resize(size);
  char* end = text.data() + from;
  for (const Piece& piece : pieces) end += piece.Words().copy(end, std::string_view::npos);
}

std::string F(Double amount) {
  AmountDigits text;
  return {text.data(), PutAmount(text.data(), amount)};
}

std::string F(Double amount, Fraction fraction) {
  AmountDigits text;
  char* end = PutAmount(text.data(), amount);
  *end++ = ' ';
  *end++ = ' ';
  return {text.data(), PutFraction(end, fraction)};
}

std::string GeneralNumber(Double value) {
  if (value == 0) return "0";
  std::array<char, 32> digits{};
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value.Value(),
                                 std::chars_format::general, 15)
                       .ptr;
  std::string text(digits.data(), end);
  if (const auto exponent = text.find('e'); exponent != std::string::npos) text[exponent] = 'E';
  return text;
}

std::string TwoDigits(int number) {
  std::string digits = std::to_string(number);
  if (number < 10) digits.insert(0, 1, '0');
  return digits;
}

bool AreDigits(std::string_view text) {
  return !text.empty() && text.find_first_not_of("0123456789") == std::string_view::npos;
}

std::string_view Trimmed(std::string_view text, std::string_view blanks) {
  const std::size_t first = text.find_first_not_of(blanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

void AppendHex(std::string& text, unsigned char byte) {
  constexpr std::string_view digits = "0123456789abcdef";
  text.append({digits[byte >> 4], digits[byte & 15]});
}

namespace {

// Characters whose other case is more than one character; all others change one by one.
struct Spelling {
  char32_t Character;
  std::string_view Changed;
};
constexpr Spelling upperSpellings[] = {
    {U'ß', "SS"}, {U'ŉ', "ʼN"}, {U'ǰ', "J̌"},   {U'ΐ', "Ϊ́"},   {U'ΰ', "Ϋ́"},  {U'և', "ԵՒ"},
    {U'ẖ', "H̱"},  {U'ẗ', "T̈"},  {U'ẘ', "W̊"},   {U'ẙ', "Y̊"},   {U'ẚ', "Aʾ"}, {U'ﬀ', "FF"},
    {U'ﬁ', "FI"}, {U'ﬂ', "FL"}, {U'ﬃ', "FFI"}, {U'ﬄ', "FFL"}, {U'ﬅ', "ST"}, {U'ﬆ', "ST"},
};
constexpr Spelling lowerSpellings[] = {{U'İ', "i̇"}};

/// The number of a character in UTF-8.
char32_t CodeOf(std::string_view character) {
  const auto lead = static_cast<unsigned char>(character.front());
  if (character.size() == 1) return lead;
  auto code = static_cast<char32_t>(lead & (0xFF >> (character.size() + 1)));
  for (const char c : character.substr(1)) code = (code << 6) | (static_cast<unsigned char>(c) & 0x3F);
  return code;
}

void AppendCharacter(std::string& text, char32_t code) {
  const auto tail = [&](int shift) { text += static_cast<char>(0x80 | ((code >> shift) & 0x3F)); };
  if (code < 0x80) {
    text += static_cast<char>(code);
  } else if (code < 0x800) {
    text += static_cast<char>(0xC0 | (code >> 6));
    tail(0);
  } else if (code < 0x10000) {
    text += static_cast<char>(0xE0 | (code >> 12));
    tail(6);
    tail(0);
  } else {
    text += static_cast<char>(0xF0 | (code >> 18));
    tail(12);
    tail(6);
    tail(0);
  }
}

const std::ctype<wchar_t>& Unicode() {
  static const std::locale unicode = [] {
    try {
      return std::locale("C.UTF-8");
    } catch (const std::runtime_error&) {
      return std::locale::classic();
    }
  }();
  return std::use_facet<std::ctype<wchar_t>>(unicode);
}

/// A byte that is not UTF-8 is kept.
template <class OneByOne>
std::string ChangeCase(std::string_view text, std::span<const Spelling> spellings, OneByOne change) {
  std::string changed;
  changed.reserve(text.size());
  while (!text.empty()) {
    const std::size_t length = FirstCharacterLength(text);
    if (length == 0) {
      changed += text.front();
      text.remove_prefix(1);
      continue;
    }
    const char32_t code = CodeOf(text.substr(0, length));
    const auto spelling = std::ranges::find(spellings, code, &Spelling::Character);
    if (spelling != spellings.end()) {
      changed += spelling->Changed;
    } else {
      AppendCharacter(changed, static_cast<char32_t>(change(static_cast<wchar_t>(code))));
    }
    text.remove_prefix(length);
  }
  return changed;
}

}  // namespace

std::string UpperCase(std::string_view text) {
  return ChangeCase(text, upperSpellings, [](wchar_t character) { return Unicode().toupper(character); });
}

std::string LowerCase(std::string_view text) {
  return ChangeCase(text, lowerSpellings, [](wchar_t character) { return Unicode().tolower(character); });
}

std::string WithoutEnd(std::string_view text, int characters) {
  for (int i = 0; i < characters; ++i) {
    if (text.empty()) throw Failure(InvalidCall);
    // The bytes 10xxxxxx continue a character.
    while (text.size() > 1 && (static_cast<unsigned char>(text.back()) & 0xC0) == 0x80) text.remove_suffix(1);
    text.remove_suffix(1);
  }
  return std::string(text);
}

}  // namespace qismora
