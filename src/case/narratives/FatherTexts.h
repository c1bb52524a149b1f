#pragma once

#include "case/narratives/NarrativeTable.h"

// The sentences of the ultimate father, in pieces around his name.
// Fixed wording; do not correct.

namespace qismora {

inline constexpr std::string_view NoFatherText =
    "In the case under examination, the deceased has neither alive Father, grand Father or great grand "
    "Father. So the share of the ultimate father in the net estate wealth is Zero.";

// Shown by no rule.
enum class FatherResiduaryText { HeIsHis, ResidueBesideSixth };
inline constexpr NarrativeTable<FatherResiduaryText, 2> FatherResiduaryTexts = {{
    {FatherResiduaryText::HeIsHis,
     "In the case under examination, the ultimate father of the deceased is his "},
    {FatherResiduaryText::ResidueBesideSixth,
     ". Moreover, the deceased has neither Sons, grand Sons or great grand Sons. So the ultimate father "
     "will also receive share as a Residiuary. This will be in addition to his normal share which is "
     "one sixth (1/6) of the net estate wealth i.e."},
}};

enum class FatherWithSonsText { HeIsHis, LeftSonsAnd, SixthOnly };
inline constexpr NarrativeTable<FatherWithSonsText, 3> FatherWithSonsTexts = {{
    {FatherWithSonsText::HeIsHis,
     "In the case under examination, the ultimate father of the deceased is his "},
    {FatherWithSonsText::LeftSonsAnd,
     ". Further, alongwith presence of Sons/ grand Sons/ great grand Sons the deceased has:"},
    {FatherWithSonsText::SixthOnly,
     "In such case, the ultimate father can not receive rights of a Residuary (Asaba') but will be "
     "entitled to receive only normal share of one sixth (1/6) of the net estate wealth i.e.:\r\n"},
}};

// Shown by no rule.
enum class FatherNoDescendantText { HeIsHis, LeftNoDescendant };
inline constexpr NarrativeTable<FatherNoDescendantText, 2> FatherNoDescendantTexts = {{
    {FatherNoDescendantText::HeIsHis,
     "In the case under examination, the ultimate father of the deceased is his "},
    {FatherNoDescendantText::LeftNoDescendant,
     ". Further, to this the deceased has left no descendant i.e. neither son/ grandson/ great "
     "grandson/ daughter/ grand daughter/ great grand daughter. So, the "},
}};

inline constexpr std::string_view FatherAsResiduaryText =
    "Ultimate Father receives as Residuary (Asaba'). Press command button Residuaries (Asaba't) to get "
    "desired result.\r\n";

inline constexpr std::string_view FatherAsSharerAndResiduaryText =
    "Ultimate Father receives as Residuary (Asaba') ALSO alongwith one sixth (1/6) share.\r\n";

}  // namespace qismora
