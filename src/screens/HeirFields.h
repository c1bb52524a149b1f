#pragma once

#include <array>
#include <string_view>

#include "faraid/Kinds.h"

namespace qismora {

/// The field in which a kind of heir is counted: its index in Text1 and Label1, and its caption. Wives and
/// husband share one.
struct HeirField {
  faraid::Kind Heir;
  int Index;
  std::string_view Caption;
};

/// In the order of the kinds and of the screen. The class II kinds follow in the order of Check1.
inline constexpr std::array<HeirField, 23> HeirFields = {{
    {faraid::Kind::Wives, 1, "Wives"},
    {faraid::Kind::Husband, 1, "Husband"},
    {faraid::Kind::Sons, 2, "Sons"},
    {faraid::Kind::Daughters, 3, "Daughters"},
    {faraid::Kind::SonsSons, 4, "Grand Sons"},
    {faraid::Kind::SonsDaughters, 5, "Grand Daughters"},
    {faraid::Kind::SonsSonsSons, 6, "Great grand Sons"},
    {faraid::Kind::SonsSonsDaughters, 7, "Gt. gnd. Daughter"},
    {faraid::Kind::Father, 13, "Father"},
    {faraid::Kind::Grandfather, 14, "Grand Father"},
    {faraid::Kind::GreatGrandfather, 15, "Great grand Father"},
    {faraid::Kind::Mother, 16, "Mother"},
    {faraid::Kind::MothersMother, 17, "Mother's Mother"},
    {faraid::Kind::MothersMothersMother, 18, "Gr. Mot's Mother"},
    {faraid::Kind::FathersMother, 19, "Father's Mother"},
    {faraid::Kind::GrandfathersMother, 20, "Gd. Fath's Mother"},
    {faraid::Kind::FathersMothersMother, 21, "Father's G.Moth."},
    {faraid::Kind::FullBrothers, 22, "Brothers (Full)"},
    {faraid::Kind::FullSisters, 23, "Sisters (Full)"},
    {faraid::Kind::ConsanguineSisters, 30, "Consanguine Sister"},
    {faraid::Kind::ConsanguineBrothers, 31, "Consang. Brother"},
    {faraid::Kind::UterineSisters, 32, "Uterine Sisters"},
    {faraid::Kind::UterineBrothers, 33, "Uterine Brothers"},
}};

/// The class II kind of a check box.
constexpr faraid::Kind ClassIIKind(int check) {
  return static_cast<faraid::Kind>(HeirFields.size() + static_cast<std::size_t>(check));
}

}  // namespace qismora
