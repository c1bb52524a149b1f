#pragma once

#include <optional>
#include <string_view>

#include "base/Numbers.h"

namespace qismora {

/// The validity test of a typed number, on the whole text: blanks; a sign or none; digits, with commas
/// behind the first one; a point and digits or none; an exponent or none; blanks. Or a hexadecimal or
/// octal number, &H or &O, without a sign.
bool IsNumber(std::string_view text);

/// The prefix parser: skips blanks, takes as much as forms a number from the left and stops at the
/// first character that cannot continue it; 0 for a text that is no number. A comma is no
/// continuation: 1,000 gives 1. Beyond the range of a Double it is the overflow failure.
Double ParsePrefix(std::string_view text);

/// The two-stage reading of a field: nothing where the text fails the validity test, otherwise the value of
/// the prefix parser.
std::optional<Double> ReadNumber(std::string_view text);

/// The strict conversion: takes what the validity test takes, the separators left out, so that 1,000
/// gives 1000. Any other text is the type failure.
Double ParseStrict(std::string_view text);

}  // namespace qismora
