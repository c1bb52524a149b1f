#pragma once

#include <span>
#include <string>

namespace qismora {

/// A caption of the Case Study screen and the index that it and its field have there.
struct Caption {
  int Index;
  const char* Words;
};

/// The captions in the order of their indices. That of field 1 is the wives'; a woman's husband shares the
/// field.
std::span<const Caption> Captions();

inline constexpr const char* HusbandCaption = "Husband";

/// The caption of a field; that of field 1 depends on who has died.
std::string CaptionOf(int field, bool femaleDeceased);

}  // namespace qismora
