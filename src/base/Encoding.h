#pragma once

#include <string_view>

namespace qismora {

/// Where the first byte stands that is not UTF-8 (overlong forms, surrogates and numbers above 10FFFF are
/// not); npos where all is.
std::size_t FindInvalidUtf8(std::string_view text);

/// Where the first control character stands: below a blank, delete, or U+0080 to U+009F in UTF-8; npos where
/// none.
std::size_t FindControlCharacter(std::string_view text);

}  // namespace qismora
