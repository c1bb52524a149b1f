#pragma once

#include "case/narratives/NarrativeTable.h"

// The sentences of the son's daughters.
// Fixed wording; do not correct.

namespace qismora {

inline constexpr std::string_view SonsDaughterExcludedBySonText =
    "In the case under consideration, the deceased has left Son and/ or Son's of Son. In presence of "
    "son or Son's Son, the grand daughter (son's daughter) can not succeed and her share in the net "
    "estate wealth will be Zero.\r\n\r\n";

inline constexpr std::string_view SonsDaughterSixthText =
    "In the case under consideration, the deceased has left NO son or equal son's son but daughter(s) "
    "only.\r\n\r\n"
    "Under the above situation, the son's daughter will receive share as sharer in the net estate "
    "wealth equal to one sixth (1/6) i.e. \r\n";

inline constexpr std::string_view SonsDaughterExcludedByDaughtersText =
    "In the case under consideration, the deceased has left NO son, son's son, or son's son's son BUT "
    "two or more daughters & son's daughter.\r\n\r\n"
    "Under the above situation, the son's daughter can not inherit and thus her share in the net "
    "estate wealth will be Zero. \r\n";

inline constexpr std::string_view SonsDaughterHalfText =
    "In the case under consideration, the deceased has left NO sons, daughters, son's son or lower "
    "son's son. The Son's daughter is only ONE and has NO other effective Quranic Sharer "
    "(Zawil-Farooz) present in this case.\r\n\r\n"
    "Under the above situation, Son's daughter will receive share in the net estate wealth equal to "
    "one half (1/2). i.e.:\r\n";

inline constexpr std::string_view SonsDaughterTwoThirdsText =
    "In the case under consideration, the deceased has left NO sons, daughters, son's son or lower "
    "son's son BUT has left two or more Son's daughters and NO other effective Quranic Sharer "
    "(Zawil-Farooz) is present in this case.\r\n\r\n"
    "Under the above situation, Son's daughters will receive shares in the net estate wealth equal to "
    "two third (2/3). i.e.:\r\n";

inline constexpr std::string_view NoSonsDaughterText =
    "In the case under examination, the deceased has left NO Son's daughter, So the share of Son's "
    "daughter in the net estate wealth is zero.\r\n\r\n"
    "\tNIL";

// The last three entries are empty; the rule of the son's son's daughter shows the last one.
enum class SonsDaughterResiduaryText {
  WithLowerSonsSon,
  WithEqualSonsSon,
  UnshownEmpty1,
  UnshownEmpty2,
  ForSonsSonsDaughter
};
inline constexpr NarrativeTable<SonsDaughterResiduaryText, 5> SonsDaughterResiduaryTexts = {{
    {SonsDaughterResiduaryText::WithLowerSonsSon,
     "In the case under consideration, the deceased has left NO son or son's son but daughter(s) and "
     "lower son's son (son's son's son) only.\r\n\r\n"
     "Under the above situation, the son's daughter will receive share as Residuary (Asaba'), with "
     "lower son's son, in the net estate wealth.\r\n\r\n"
     "\tRESIDUARY (Asaba')"},
    {SonsDaughterResiduaryText::WithEqualSonsSon,
     "In the case under consideration, the deceased has left NO sons BUT has left daughter(s), equal "
     "son's son ALIVE.\r\n\r\n"
     "Under the above situation, Son's daughter will be a Residuary (Asaba') with equal son's son. Her "
     "share in the net estate wealth will be:\r\n\r\n"
     "\tRESIDUARY (Asaba')"},
    {SonsDaughterResiduaryText::UnshownEmpty1, ""},
    {SonsDaughterResiduaryText::UnshownEmpty2, ""},
    {SonsDaughterResiduaryText::ForSonsSonsDaughter, ""},
}};

}  // namespace qismora
