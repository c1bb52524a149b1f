#pragma once

#include <span>
#include <string_view>

namespace qismora {

/// A caption of the Case Study screen and the index that it and its field have there.
struct Caption {
  int Index = 0;
  std::string_view Words;
};

/// The captions, those of the heirs first. Field 1 is the wives'; a woman's husband shares it.
std::span<const Caption> Captions();

/// The caption of a field; that of field 1 depends on who has died.
std::string_view CaptionOf(int field, bool femaleDeceased);

}  // namespace qismora
