#pragma once

#include "case/narratives/NarrativeTable.h"

// The sentences of the daughters and of the son.
// Fixed wording; do not correct.

namespace qismora {

// Shown by no rule.
inline constexpr std::string_view DaughterResiduaryText =
    "In presence of son(s), as in this case, the daughter(s) will receive share as Residuary "
    "(Asaba').\r\n";

inline constexpr std::string_view OneDaughterText =
    "In the case under consideration, the deceased has left NO son but a daughter only.\r\n\r\n"
    "Under the above situation, the daughter will receive share in the net estate wealth equal to one "
    "half (1/2) i.e. \r\n";

inline constexpr std::string_view TwoDaughtersText =
    "In the case under examination, the deceased has left NO son but daughters (two or more) "
    "only.\r\n\r\n"
    "Under such situation, the daughters will receive share in the net estate wealth equal to two "
    "third (2/3) i.e.\r\n\r\n";

enum class NoDaughterEntry { NoDaughter, UnshownOpening, UnshownResiduary };
inline constexpr NarrativeTable<NoDaughterEntry, 3> NoDaughterText = {{
    {NoDaughterEntry::NoDaughter,
     "In the case under examination, the deceased has left NO daughter(s), So the share of daughter(s) "
     "in the net estate wealth is zero.\r\n\r\n"
     "\tNIL"},
    {NoDaughterEntry::UnshownOpening,
     "\r\nIn the case under examination, the deceased has left the following:.\r\n\r\n"},
    {NoDaughterEntry::UnshownResiduary,
     "In presence of Son(s), the daughter receives as Residuary (Asaba'). Thus, share of EACH daughter "
     "in the net estate wealth will be:\r\n\r\n"},
}};

enum class SonWithDaughtersText { LeftSonsAndDaughters, UnshownResiduary };
inline constexpr NarrativeTable<SonWithDaughtersText, 2> SonWithDaughtersTexts = {{
    {SonWithDaughtersText::LeftSonsAndDaughters,
     "In the case under examination, the deceased has left the following:\r\n\r\n"},
    {SonWithDaughtersText::UnshownResiduary,
     "In presence of Daughter(s), daughter(s) also become Residuary (Asaba') with son(s).\r\n\r\n"},
}};

// The sentences about the residue of daughters and sons. NoSonText is followed by "NIL", the others except
// the opening by "RESIDUARY (ASABA')".
inline constexpr std::string_view DaughterResiduaryOpening =
    "In the case under examination, the deceased has left the following:\r\n\r\n";

inline constexpr std::string_view DaughterWithSonText =
    "The Son and Daughter both will receive as Residuaries (Asaba't) in the ratio 2:1 each respectively."
    "\r\n\r\n";

inline constexpr std::string_view NoSonText =
    "As the deceased has NO Son, Son's Son or Son's Son's Son so the descending son's share in the net estate "
    "wealth is zero.\r\n\r\n";

inline constexpr std::string_view SonWithDaughterText =
    "The Son of eligible class will receive as Residuary (Asaba') with eligible descendant sharers/ "
    "residuaries.\r\n\r\n";

inline constexpr std::string_view SonAloneText =
    "Since, the deceased has left NO daughter BUT son is present. In such case, Son will receive as "
    "Residuary (Asaba').\r\n\r\n";

inline constexpr std::string_view SonsSonAloneText =
    "Since, the deceased has left NO daughter or son  BUT son's son is present. In such case, Son's Son will "
    "receive as Residuary (Asaba').\r\n\r\n";

inline constexpr std::string_view SonsSonsSonAloneText =
    "Since, the deceased has left NO daughter or son's son BUT son's son's son is present. In such case, "
    "Son's Son's Son will receive as Residuary (Asaba').\r\n\r\n";

}  // namespace qismora
