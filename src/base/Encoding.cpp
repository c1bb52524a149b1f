#include "base/Encoding.h"

#include <cstdint>
#include <cstring>

namespace qismora {

namespace {

/// A well-formed sequence: the range of its first byte, its length, and the range of its second byte. All
/// further bytes are from 80 to BF.
struct Sequence {
  unsigned char FirstLead;
  unsigned char LastLead;
  std::size_t Bytes;
  unsigned char LeastSecond;
  unsigned char MostSecond;
};

constexpr Sequence sequences[] = {
    {0x00, 0x7F, 1, 0x00, 0x00}, {0xC2, 0xDF, 2, 0x80, 0xBF}, {0xE0, 0xE0, 3, 0xA0, 0xBF},
    {0xE1, 0xEC, 3, 0x80, 0xBF}, {0xED, 0xED, 3, 0x80, 0x9F}, {0xEE, 0xEF, 3, 0x80, 0xBF},
    {0xF0, 0xF0, 4, 0x90, 0xBF}, {0xF1, 0xF3, 4, 0x80, 0xBF}, {0xF4, 0xF4, 4, 0x80, 0x8F},
};

}  // namespace

std::size_t FirstCharacterLength(std::string_view text) {
  const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
  for (const Sequence& row : sequences) {
    if (byte(0) < row.FirstLead || byte(0) > row.LastLead) continue;
    if (row.Bytes > text.size()) return 0;
    if (row.Bytes > 1 && (byte(1) < row.LeastSecond || byte(1) > row.MostSecond)) return 0;
    for (std::size_t i = 2; i < row.Bytes; ++i) {
      if ((byte(i) & 0xC0) != 0x80) return 0;
    }
    return row.Bytes;
  }
  return 0;
}

std::size_t FindInvalidUtf8(std::string_view text) {
  std::size_t at = 0;
  while (at < text.size()) {
    // Most texts are plain ASCII: eight bytes at once.
    std::uint64_t eight = 0;
    if (text.size() - at >= sizeof eight) {
      std::memcpy(&eight, text.data() + at, sizeof eight);
      if ((eight & 0x8080808080808080U) == 0) {
        at += sizeof eight;
        continue;
      }
    }
    const std::size_t bytes = FirstCharacterLength(text.substr(at));
    if (bytes == 0) return at;
    at += bytes;
  }
  return std::string_view::npos;
}

std::size_t FindControlCharacter(std::string_view text) {
  for (std::size_t at = 0; at < text.size(); ++at) {
    const auto byte = static_cast<unsigned char>(text[at]);
    if (byte < 0x20 || byte == 0x7F) return at;
    if (byte == 0xC2 && at + 1 < text.size() && static_cast<unsigned char>(text[at + 1]) < 0xA0) return at;
  }
  return std::string_view::npos;
}

}  // namespace qismora
