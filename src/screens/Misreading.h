#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "base/Message.h"

namespace qismora {

/// How the load reads the text of a field.
enum class Reading : std::uint8_t { AsItStands, AsAnotherNumber, NotAtAll, TooLarge };

struct TypedReading {
  Reading How = Reading::AsItStands;
  /// The number that is read, in plain digits.
  std::string Number;
};

/// How the load reads a text in the field Text1(index). A comma ends a number. All fields except the gross
/// estate round to whole numbers, and refuse numbers that are too large for their type. A text that is not a
/// number is not read.
TypedReading ReadTyped(std::string_view text, int index);

/// The reading as a sentence, if it differs from what the user sees. Plain digits are read as they are, and
/// so are plain decimals in the gross estate and a whole number below 0; then it is empty. If nothing is
/// read, the sentence says that the kept figure stays.
std::string Misreading(std::string_view text, int index, std::string_view kept);

/// How the digits of an amount are grouped: 1,234,567 or, in South Asia, 12,34,567.
enum class Grouping : std::uint8_t { Thousands, Indian };

/// A number in plain digits with commas between its groups. A number with an exponent stays as it is.
std::string Grouped(std::string_view number, Grouping grouping);

/// A field that is read differently: its caption, its text, and the figure that stays where nothing is read,
/// empty where that is the one of the run before.
struct MisreadField {
  std::string Caption;
  std::string Text;
  std::string Kept;
};

/// The reading as a sentence that names the field.
Message SentenceOf(const TypedReading& reading, const MisreadField& field, Grouping grouping);

}  // namespace qismora
