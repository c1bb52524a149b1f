#pragma once

#include "case/narratives/NarrativeTable.h"

// The sentences of the true grandmothers.
// Fixed wording; do not correct.

namespace qismora {

// Shown by no rule.
inline constexpr std::string_view GrandMotherMotherAliveText =
    "In the case under examination, since mother of the deceased is alive, so the share of "
    "grandmother/ great grandmother in the net estate wealth will be zero.\r\n";

inline constexpr std::string_view NoGrandMotherText =
    "In the case under examination, non of the ascendant female members on either side, i.e. peternal "
    "and maternal, is alive.\r\n\r\n"
    "under the above situation, there is non as true grandmother and hence, share of true grandmother "
    "in the net estate wealth will be zero.\r\n\r\n";

enum class GrandMotherText {
  MothersMotherBesideFather,
  MothersMothersMotherBesideFather,
  ExcludedByMother,
  BothGrandMothers,
  MothersMotherAlone,
  UnshownFathersMotherAndGreatGrandMother,
  FathersMotherAlone,
  GreatGrandMothers,
  ExcludedByFatherAndNearer
};
inline constexpr NarrativeTable<GrandMotherText, 9> GrandMotherTexts = {{
    {GrandMotherText::MothersMotherBesideFather,
     "In the case under examination, mother of the deceased is NOT alive but father is alive and "
     "maternal grandmother is alive.\r\n\r\n"
     "In presence of father no True grandmother from paternal side, if present, will inherit any share. "
     "Since mother's mother is alive, only she will be eligible to get share in the net estate wealth "
     "equal to one sixth (1/6) i.e.\r\n\r\n"},
    {GrandMotherText::MothersMothersMotherBesideFather,
     "In the case under examination, mother and mother's mother of the deceased are NOT alive but "
     "father is alive and maternal great grandmother is alive.\r\n\r\n"
     "In presence of father no True grandmother from paternal side, if present, will inherit any share. "
     "Since mother's mother's mother (grandmother's mother) is alive, only she will be eligible to get "
     "share in the net estate wealth equal to one sixth (1/6) i.e.\r\n\r\n"},
    {GrandMotherText::ExcludedByMother,
     "In the case under examination, Mother of the deceased is alive.\r\n\r\n"
     "In presence of Mother no True grandmother from either paternal side or maternal side can inherit "
     "any share. So the share of True grandmother, if any, in  the net estate wealth is zero.\r\n\r\n"},
    {GrandMotherText::BothGrandMothers,
     "In the case under examination, both father and mother of the deceased are NOT alive. Moreover, "
     "both mother's mother and father's mother are alive.\r\n\r\n"
     "Under the above situation both types of True grandmothers, paternal and maternal, shall inherit. "
     "Each true grandmother shall share equally from the one sixth estate. Total share of true "
     "grandmothers in the net estate wealth will be one sixth (1/6) i.e.\r\n\r\n"},
    {GrandMotherText::MothersMotherAlone,
     "In the case under examination, both father and mother of the deceased are NOT alive. However, "
     "mother's mother is alive.\r\n\r\n"
     "Under the above situation maternal True grandmother shall inherit. Total share of true "
     "grandmother in the net estate wealth will be one sixth (1/6) i.e.\r\n\r\n"},
    {GrandMotherText::UnshownFathersMotherAndGreatGrandMother,
     "In the case under examination, both father and mother of the deceased are NOT alive. Moreover, "
     "mother's mother is also NOT alive. However, mother's mother's mother as well as father's mother "
     "are alive.\r\n\r\n"
     "Under the above situation paternal True grandmother and maternal great grandmother shall inherit. "
     "Each will get equal share from one sixth of the estate. Total share of true grandmothers in the "
     "net estate wealth will be one sixth (1/6) i.e.\r\n\r\n"},
    {GrandMotherText::FathersMotherAlone,
     "In the case under examination, both father and mother of the deceased are NOT alive. Moreover, "
     "mother's mother and mother's mother's mother are also NOT alive. However, father's mother is "
     "alive.\r\n\r\n"
     "Under the above situation paternal True grandmother (father's mother) only shall inherit. Share "
     "of true grandmother in the net estate wealth will be one sixth (1/6) i.e.\r\n\r\n"},
    {GrandMotherText::GreatGrandMothers,
     "In the case under examination, both father and mother of the deceased are NOT alive. Moreover, "
     "NON of mother's mother or father's mother are alive. However, only great grandmother(s) is/are "
     "alive.\r\n\r\n"
     "Under the above situation True grandmother i.e. great grandmother(s) only shall inherit. In case "
     "number of great grandmother(s) is more then one then each will get equal share. Share of true "
     "grandmother in the net estate wealth will be one sixth (1/6) i.e.\r\n\r\n"},
    {GrandMotherText::ExcludedByFatherAndNearer,
     "In the case under examination, mother and mother's mother of the deceased are NOT alive but "
     "father is alive alongwith father's mother and maternal great grandmother.\r\n\r\n"
     "In presence of father no True grandmother from paternal side, if present, will inherit any share. "
     "So, father's mother can not inherit. Further, in presence of nearer one the remoter will not "
     "inherit, so mother's mother's mother (grandmother's mother) can not inherit in presence of "
     "father's mother. Under the circumstances, share of true grandmother in the  net estate wealth is "
     "zero.\r\n\r\n"},
}};

}  // namespace qismora
