#include "casefile/Captions.h"

#include <algorithm>
#include <array>

#include "casefile/HeirFields.h"
#include "residue/ClassII.h"

namespace qismora {

namespace {

constexpr Caption otherCaptions[] = {
    {0, "CASE WHEN DECEASED IS A"}, {NameField, "Deceased"}, {GrossEstateField, "Gross Estate"},
    {FuneralField, "Funeral exp."}, {DebtsField, "Debts"},   {WillsField, "Will(s)"},
    {NetEstateField, "Net Estate"},
};

constexpr auto captions = [] {
  // The husband shares the field of the wives.
  std::array<Caption, HeirFields.size() - 1 + std::size(otherCaptions)> all;
  std::size_t size = 0;
  for (const HeirField& field : HeirFields) {
    if (field.Heir != faraid::Kind::Husband) all[size++] = {field.Index, field.Caption};
  }
  for (const Caption& caption : otherCaptions) all[size++] = caption;
  return all;
}();

}  // namespace

std::span<const Caption> Captions() { return captions; }

std::string_view CaptionOf(faraid::Kind kind) {
  const auto index = static_cast<std::size_t>(kind);
  if (index < HeirFields.size()) return HeirFields[index].Caption;
  return kind == faraid::Kind::Remainder ? "Remainder" : ClassIIRows[index - HeirFields.size()].Caption;
}

std::string_view CaptionOf(int field, bool femaleDeceased) {
  if (field == SpouseField && femaleDeceased) return CaptionOf(faraid::Kind::Husband);
  return std::ranges::find(captions, field, &Caption::Index)->Words;
}

}  // namespace qismora
