#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace qismora {

/// What the load will make of a text.
enum class Reading : std::uint8_t { AsItStands, AsAnotherNumber, NotAtAll, TooLarge };

struct TypedReading {
  Reading How = Reading::AsItStands;
  /// The number that is read, in plain digits.
  std::string Number;
};

/// What the load will make of a text typed into the field Text1(index): a comma ends a number, all fields but
/// the gross estate round to whole numbers and refuse what is too large for their type, and what is no number
/// is not read.
TypedReading ReadTyped(std::string_view text, int index);

/// The reading as a sentence where it is not what stands there at first sight. Kept names the figure that
/// stays where nothing is read. Empty for plain digits, and for plain decimals in the gross estate.
std::string Misreading(std::string_view text, int index, std::string_view kept);

/// How people group the digits of an amount: 1,234,567 or, in India and around it, 12,34,567.
enum class Grouping : std::uint8_t { Thousands, Indian };

/// A number in plain digits with commas between its groups. A number with an exponent stays as it is.
std::string Grouped(std::string_view number, Grouping grouping);

}  // namespace qismora
