#pragma once

#include <string>
#include <string_view>

namespace qismora {

/// What the load will make of a text typed into the field Text1(index), where that is not what stands there
/// at first sight: a comma ends a number, all fields but the gross estate round to whole numbers and refuse
/// what is too large for their type, and what is no number leaves the figure that the case holds. Kept names
/// that figure. Empty for plain digits, and for plain decimals in the gross estate.
std::string Misreading(std::string_view text, int index, std::string_view kept);

}  // namespace qismora
