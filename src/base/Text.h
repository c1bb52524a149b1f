#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

#include "base/Numbers.h"

namespace qismora {

inline constexpr std::string_view CRLF = "\r\n";
inline constexpr std::string_view TAB = "\t";

/// A piece of a text that is being joined: a text, a whole number in plain digits, or a fraction in brackets.
/// It refers to the text and does not own it.
class Piece {
 public:
  Piece(const char* words) : words_(words) {}
  Piece(std::string_view words) : words_(words) {}
  Piece(const std::string& words) : words_(words) {}
  Piece(int number);
  Piece(Integer number) : Piece(static_cast<int>(number.Value())) {}
  Piece(Long number) : Piece(static_cast<int>(number.Value())) {}
  Piece(Fraction fraction);
  /// A control's text or caption.
  template <class Property>
  requires requires(const Property& property) { property.Get().size(); }
  Piece(const Property& property) : words_(property.Get()) {}
  Piece(const Piece&) = delete;
  Piece& operator=(const Piece&) = delete;

  std::string_view Words() const { return words_; }

 private:
  char digits_[32];
  std::string_view words_;
};

/// Replaces the text from that position on by the pieces.
void PutPieces(std::string& text, std::size_t from, std::initializer_list<Piece> pieces);

// The pieces in order, with nothing between them. The text that is written must not be one of its pieces.

template <class... Pieces>
void Write(std::string& text, const Pieces&... pieces) {
  PutPieces(text, 0, {Piece(pieces)...});
}
template <class... Pieces>
void Append(std::string& text, const Pieces&... pieces) {
  PutPieces(text, text.size(), {Piece(pieces)...});
}
template <class... Pieces>
std::string Join(const Pieces&... pieces) {
  std::string text;
  Write(text, pieces...);
  return text;
}

/// The amount as a whole number of at least one digit, halves rounded away from zero. A negative
/// amount keeps its sign even where it rounds to nothing: "-0". Only the text is rounded.
std::string F(Double amount);
/// The same, followed by two blanks and the fraction: "3000  (1/8)".
std::string F(Double amount, Fraction fraction);

/// The shortest text of a number with up to 15 significant digits; an exponent from 1E+15 upwards and
/// below 1E-04.
std::string GeneralNumber(Double value);

/// A number of at least two digits: 7 gives "07".
std::string TwoDigits(int number);

/// Whether the text consists of the digits 0 to 9 alone, and of at least one.
bool AreDigits(std::string_view text);

/// The text without the given blanks at its start and its end.
std::string_view Trimmed(std::string_view text, std::string_view blanks);

/// Appends a byte as two hexadecimal digits.
void AppendHex(std::string& text, unsigned char byte);

/// The text in upper or lower case, by the rules of Unicode.
std::string UpperCase(std::string_view text);
std::string LowerCase(std::string_view text);

/// The text without that number of characters (not bytes) at its end. Throws
/// Failure(InvalidCall) if the text is shorter.
std::string WithoutEnd(std::string_view text, int characters);

}  // namespace qismora
