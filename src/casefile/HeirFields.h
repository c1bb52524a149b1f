#pragma once

#include <array>
#include <string_view>

#include "case/CaseScreen.h"
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
    {faraid::Kind::Wives, SpouseField, "Wives"},
    {faraid::Kind::Husband, SpouseField, "Husband"},
    {faraid::Kind::Sons, SonsField, "Sons"},
    {faraid::Kind::Daughters, DaughtersField, "Daughters"},
    {faraid::Kind::SonsSons, GrandSonsField, "Grand Sons"},
    {faraid::Kind::SonsDaughters, GrandDaughtersField, "Grand Daughters"},
    {faraid::Kind::SonsSonsSons, GtGrandSonsField, "Great grand Sons"},
    {faraid::Kind::SonsSonsDaughters, GtGrandDaughtersField, "Gt. gnd. Daughter"},
    {faraid::Kind::Father, FatherField, "Father"},
    {faraid::Kind::Grandfather, GrandFatherField, "Grand Father"},
    {faraid::Kind::GreatGrandfather, GtGrandFatherField, "Great grand Father"},
    {faraid::Kind::Mother, MotherField, "Mother"},
    {faraid::Kind::MothersMother, MothersMotherField, "Mother's Mother"},
    {faraid::Kind::MothersMothersMother, MothersMothersMotherField, "Gr. Mot's Mother"},
    {faraid::Kind::FathersMother, FathersMotherField, "Father's Mother"},
    {faraid::Kind::GrandfathersMother, GrandFathersMotherField, "Gd. Fath's Mother"},
    {faraid::Kind::FathersMothersMother, FathersGrandMotherField, "Father's G.Moth."},
    {faraid::Kind::FullBrothers, FullBrothersField, "Brothers (Full)"},
    {faraid::Kind::FullSisters, FullSistersField, "Sisters (Full)"},
    {faraid::Kind::ConsanguineSisters, ConsSistersField, "Consanguine Sister"},
    {faraid::Kind::ConsanguineBrothers, ConsBrothersField, "Consang. Brother"},
    {faraid::Kind::UterineSisters, UterineSistersField, "Uterine Sisters"},
    {faraid::Kind::UterineBrothers, UterineBrothersField, "Uterine Brothers"},
}};

/// The class II kind of a check box.
constexpr faraid::Kind ClassIIKind(int check) {
  return static_cast<faraid::Kind>(HeirFields.size() + static_cast<std::size_t>(check));
}

}  // namespace qismora
