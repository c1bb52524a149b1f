#pragma once

#include "case/narratives/NarrativeTable.h"

// The sentences of the mother.
// Fixed wording; do not correct.

namespace qismora {

inline constexpr std::string_view NoMotherText =
    "In the case under examination, since the deceased's mother is not alive, so the share of mother "
    "in the net estate wealth is Zero.";

enum class MotherSixthText { LeftTheseHeirs, SixthBesideThem };
inline constexpr NarrativeTable<MotherSixthText, 2> MotherSixthTexts = {{
    {MotherSixthText::LeftTheseHeirs,
     "In the case under examination, the following legal heirs are alive:\r\n"},
    {MotherSixthText::SixthBesideThem,
     "\r\nIn presence of any of the descendant heirs or in presence of two or more brothers or sisters "
     "or both (brother plus sister of any type i.e. Full, Consanguine or Uterine) the share of mother "
     "in the net estate wealth will be only one sixth (1/6) i.e.\r\n"},
}};

enum class MotherThirdOfRestText { ThirdOfRemainder, Abbreviations };
inline constexpr NarrativeTable<MotherThirdOfRestText, 2> MotherThirdOfRestTexts = {{
    {MotherThirdOfRestText::ThirdOfRemainder,
     "In the case under examination, the deceased has not left any descendant and the number of "
     "brothers and sisters alive is either one or non (zero). However, the deceased's husband (or wife "
     "as the case may be) and father are alive.\r\n\r\n"
     "Under the above situation, the share of deceased's mother in the net estate wealth will be one "
     "third (1/3) of (NE-WHS), Where:\r\n"},
    {MotherThirdOfRestText::Abbreviations,
     "NE - Net estate wealth\r\n"
     "WHS - Share of Husband/ Wife\r\n"},
}};

inline constexpr std::string_view MotherThirdNoSpouseText =
    "In the case under examination, the deceased has not left any descendant and the number of "
    "brothers and sisters alive is either one or non (zero). However, the deceased's husband (or wife "
    "as the case may be) is NOT alive.\r\n\r\n"
    "Under the above situation, the share of deceased's mother in the net estate wealth will be one "
    "third (1/3) i.e.\r\n\r\n";

inline constexpr std::string_view MotherThirdNoFatherText =
    "In the case under examination, the deceased has not left any descendant and the number of "
    "brothers and sisters alive is either one or non (zero). However, the deceased's husband (or wife "
    "as the case may be) is alive but father is NOT alive.\r\n\r\n"
    "Under the above situation, the share of deceased's mother in the net estate wealth will be one "
    "third (1/3) i.e.\r\n\r\n";

}  // namespace qismora
