#pragma once

#include <span>
#include <string_view>

#include "faraid/Kinds.h"

namespace qismora {

/// A caption of the Case Study screen, and its index in Label1, which is that of its field in Text1.
struct Caption {
  int Index = 0;
  std::string_view Words;
};

/// The captions, those of the heirs first. Field 1 has the caption of the wives; the husband shares it.
std::span<const Caption> Captions();

/// The caption of a kind of heir, including the class II kinds and "Remainder".
std::string_view CaptionOf(faraid::Kind kind);

/// The caption of a field. That of field 1 depends on the gender of the deceased.
std::string_view CaptionOf(int field, bool femaleDeceased);

}  // namespace qismora
