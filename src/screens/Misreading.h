#pragma once

#include <string>
#include <string_view>

namespace qismora {

/// What is read of a text typed into a box, where that is not what stands there at first sight: a comma ends
/// a number, what is no number leaves the figure of the run before, and a box for whole numbers rounds. Empty
/// for plain digits, and for plain decimals in a box that is not for whole numbers.
std::string Misreading(std::string_view text, bool whole);

}  // namespace qismora
