#pragma once

#include <string_view>

namespace qismora {

/// The bytes with which some programs begin a file in UTF-8.
inline constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";

/// The length in bytes of the first character of a text that is not empty; 0 if it is not UTF-8. Overlong
/// forms, surrogates and numbers above 10FFFF are not UTF-8.
std::size_t FirstCharacterLength(std::string_view text);

/// The position of the first byte that is not UTF-8, npos if there is none.
std::size_t FindInvalidUtf8(std::string_view text);

/// The position of the first control character, npos if there is none. Control characters are U+0000 to
/// U+001F and U+007F to U+009F.
std::size_t FindControlCharacter(std::string_view text);

}  // namespace qismora
