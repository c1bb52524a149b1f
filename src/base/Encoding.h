#pragma once

#include <string_view>

namespace qismora {

/// The position of the first byte that is not UTF-8, npos if there is none. Overlong forms, surrogates and
/// numbers above 10FFFF are not UTF-8.
std::size_t FindInvalidUtf8(std::string_view text);

/// The position of the first control character, npos if there is none: below a blank, delete, or U+0080 to
/// U+009F in UTF-8.
std::size_t FindControlCharacter(std::string_view text);

}  // namespace qismora
