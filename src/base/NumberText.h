#pragma once

#include <optional>
#include <string_view>

#include "base/Numbers.h"

namespace qismora {

/// Whether the whole text is a number, with or without blanks around it. Optional are a sign, commas after
/// the first digit, a point with decimals, and an exponent. A hexadecimal (&H) or octal (&O) number has no
/// sign.
bool IsNumber(std::string_view text);

/// The number at the start of the text, after any blanks: the longest prefix that forms one, or 0. A comma
/// ends it: 1,000 gives 1. Throws Failure(Overflow) beyond the range of a Double.
Double ParsePrefix(std::string_view text);

/// Reads a field: nothing if the whole text is not a number (IsNumber), otherwise the value of ParsePrefix.
std::optional<Double> ReadNumber(std::string_view text);

/// The value of a text that is a number (IsNumber), without its commas: 1,000 gives 1000. Throws
/// Failure(TypeMismatch) for any other text.
Double ParseStrict(std::string_view text);

}  // namespace qismora
