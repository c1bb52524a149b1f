#pragma once

#include "case/narratives/NarrativeTable.h"

// The sentences of the son's son's daughters.
// Fixed wording; do not correct.

namespace qismora {

enum class SonsSonsDaughterText {
  ExcludedBySons,
  SixthBesideDaughter,
  ResiduaryBesideSonsDaughter,
  SixthBesideSonsDaughter,
  ExcludedBySonsDaughters,
  ResiduaryWithSonsSonsSon,
  HalfAlone,
  TwoThirdsTogether,
  NoSonsSonsDaughter,
  ExcludedByDaughterAndSonsDaughter
};
inline constexpr NarrativeTable<SonsSonsDaughterText, 10> SonsSonsDaughterTexts = {{
    {SonsSonsDaughterText::ExcludedBySons,
     "In the case under examination, it is to be noted that the son's son's daughter(s) can not succeed "
     "as sharer in presence of son or son's son.\r\n\r\n"
     "Under the above situation, the Son's son's daughter(s) share in the net estate wealth will be "
     "Zero.\r\n\r\n"
     "\tNIL"},
    {SonsSonsDaughterText::SixthBesideDaughter,
     "In the case under examination, the deceased has NOT left any son, son's son, son's daughter or "
     "son's son's son But has left daughter(s) and son's son's daughter(s) only.\r\n\r\n"
     "Under the above situation, the Son's son's daughter will receive one sixth (1/6) as Quranic "
     "Sharer (Zawil-Farooz).\r\n\r\n"},
    {SonsSonsDaughterText::ResiduaryBesideSonsDaughter,
     "In the case under examination, the deceased has NOT left any son, daughter, son's son. But has "
     "left one son's daughter and son's son's son(s). Under the above situation, the Son's son's "
     "daughter(s) become Residuary (Asaba') with Son's son's son(s). Son's daughter will take as "
     "sharer.\r\n\r\n"
     "Thus, son's son's daughter will receive as Residuary (Asaba') with Son's son's son.\r\n\r\n"
     "\tRESIDUARY (Asaba')"},
    {SonsSonsDaughterText::SixthBesideSonsDaughter,
     "In the case under examination, the deceased has NOT left any son, daughter, son's son or son's "
     "son's son(s). But has left son's daughter(s). Under the above situation, the Son's son's daughter "
     "will receive one sixth (1/6) as Sharer. \r\n\r\n"
     "Thus, son's son's daughter share in the net estate wealth will be:\r\n\r\n"
     "\t"},
    {SonsSonsDaughterText::ExcludedBySonsDaughters,
     "In the case under examination, the deceased has left no son, daughter or son's son but two or "
     "more son's daughters. In such a condition, the share of Son's son's daughter in the net estate "
     "wealth will be zero.\r\n\r\n"
     "\t0"},
    {SonsSonsDaughterText::ResiduaryWithSonsSonsSon,
     "In the case under examination, the deceased has NOT left any son, daughter, son's son or son's "
     "daughter. But has left only son's son's son(s). Under the above situation, the Son's son's "
     "daughter(s) become Residuary (Asaba') with Son's son's son(s) i.e. equal son's son.\r\n\r\n"
     "Thus, son's son's daughter will receive as Residuary (Asaba') with Son's son's son.\r\n\r\n"
     "\tRESIDUARY (Asaba')"},
    {SonsSonsDaughterText::HalfAlone,
     "In the case under examination, the deceased has NOT left any son, daughter, son's son, son's "
     "daughter or son's son's son. But has left only one son's son's daughter. Under the above "
     "situation, the Son's son's daughter will receive one half (1/2) as sharer.\r\n\r\n"
     "Thus, son's son's daughter share in the net estate wealth will be:\r\n\r\n"
     "\t"},
    {SonsSonsDaughterText::TwoThirdsTogether,
     "In the case under examination, the deceased has NOT left any son, daughter, son's son, son's "
     "daughter or son's son's son. But has left more than one son's son's daughters. Under the above "
     "situation, the Son's son's daughters will receive two third (2/3) as sharer.\r\n\r\n"
     "Thus, son's son's daughters share in the net estate wealth will be:\r\n\r\n"
     "\t"},
    {SonsSonsDaughterText::NoSonsSonsDaughter,
     "In the case under examination, the deceased has left no Son's son's daughter, So the share of "
     "Son's son's daughter in the net estate wealth is Zero.\r\n\r\n"
     "\tNIL"},
    {SonsSonsDaughterText::ExcludedByDaughterAndSonsDaughter,
     "In the case under examination, the deceased has left no son or son's son but daughter(s) and "
     "son's daughter(s). In such a condition, the share of Son's son's daughter in the net estate "
     "wealth is Zero.\r\n\r\n"
     "\tNIL"},
}};

inline constexpr std::string_view SonsSonsDaughterSixthText =
    "Share of Son's son's daughter is 1/6 in presence of son's daughter. ";

}  // namespace qismora
