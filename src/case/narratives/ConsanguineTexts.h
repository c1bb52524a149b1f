#pragma once

#include "case/narratives/NarrativeTable.h"

// The sentences of the consanguine sister and brother.
// Fixed wording; do not correct.

namespace qismora {

enum class ConsSisterText {
  LeftExcluders,
  Excluded,
  LeftOneFullSister,
  SixthBesideFullSister,
  NoConsSister,
  LeftConsBrother,
  ResiduaryWithBrother,
  LeftNobodyNearer,
  SharerOfHalfOrTwoThirds,
  ResiduaryWithBrotherBesideDaughters,
  ResiduaryBesideDaughters
};
inline constexpr NarrativeTable<ConsSisterText, 11> ConsSisterTexts = {{
    {ConsSisterText::LeftExcluders,
     "In the case under examination, the deceased has left the following:\r\n\r\n"},
    {ConsSisterText::Excluded,
     "\r\nIn presence of ANY one of above OR more than one FULL sister the Consanguine Sister can not "
     "succeed.\r\n\r\n"
     "So, the share of Consanguine Sister in the net estate wealth will be Zero.\r\n"},
    {ConsSisterText::LeftOneFullSister,
     "In the case under examination, the deceased has NOT left son, daughter, son's son, son's "
     "daughter, son's son's son, son's son's daughter, Father, Father's Father, Father's Father's "
     "Father, Full brother EXCEPT ONE FULL sister.\r\n"},
    {ConsSisterText::SixthBesideFullSister,
     "\r\nIn absence of ALL above BUT with one FULL sister the Consanguine Sister succeeds as a "
     "sharer.\r\n\r\n"
     "The share of Consanguine Sister in the net estate wealth will be one sixth (1/6) i.e.\r\n"},
    {ConsSisterText::NoConsSister,
     "In the case under examination, the deceased has NOT left any Consanguine Sister. So, the share of "
     "Consanguine Sister in the net estate wealth will be Zero.\r\n"},
    {ConsSisterText::LeftConsBrother,
     "In the case under examination, the deceased has left NO Son, Son' son, Son's Son's Son, Father, "
     "Grand Father or Great Grand Father, daughter(s)/ descending Daughters, FULL Brother or Sister BUT "
     "has left a Consanguine Brother:\r\n"},
    {ConsSisterText::ResiduaryWithBrother,
     "\r\nIn presence of Consanguine Brother, the Consanguine Sister will succeed as a Residuary "
     "(Asaba') with the Consanguine Brother.\r\n\r\n"
     "So, the share of Consanguine Sister in the net estate wealth as a Residuary (Asaba') will be:\r\n"},
    {ConsSisterText::LeftNobodyNearer,
     "In the case under examination, the deceased has left NO Son, Son' son, Son's Son's Son, Father, "
     "Grand Father or Great Grand Father, daughter(s)/ descending Daughters, FULL Brother or Sister or "
     "Consanguine Brother:\r\n"},
    {ConsSisterText::SharerOfHalfOrTwoThirds,
     "\r\nIn absence of ALL of above, the Consanguine Sister will succeed as a SHARER.\r\n\r\n"
     "If number of Consanguine Sisters is one she will get one half (1/2) and if more than one then two "
     "third (2/3) in the net estate wealth as a SHARER.\r\n"},
    {ConsSisterText::ResiduaryWithBrotherBesideDaughters,
     "In the case under examination, the deceased has NOT left son, son's son, son's son's son, Father, "
     "Father's Father, Father's Father's Father, Full brother, Full sister EXCEPT daughter(s)/ "
     "descending daughter(s) and consanguine Brother(s).\r\n\r\n"
     "Under the above condition, the daughter(s)/ descending daughter(s) will take their share and the "
     "consanguine sister will receive as Residuary (Asaba') with consanguine Brother."},
    {ConsSisterText::ResiduaryBesideDaughters,
     "In the case under examination, the deceased has NOT left son, son's son, son's son's son, Father, "
     "Father's Father, Father's Father's Father, Full brother, Full sister, consanguine Brother EXCEPT "
     "daughter(s)/ descending daughter(s).\r\n\r\n"
     "Under the above condition, the daughter(s)/ descending daughter(s) will take their share and the "
     "consanguine sister will receive as Residuary (Asaba')."},
}};

enum class ConsBrotherText {
  LeftExcluders,
  Excluded,
  LeftConsSister,
  ResiduaryWithSister,
  NoConsBrother,
  LeftNobodyNearer,
  ResiduaryAlone,
  UnshownSisterOpening,
  UnshownSisterAsSharer,
  LeftNoExcluder,
  ResiduaryBesideDaughters
};
inline constexpr NarrativeTable<ConsBrotherText, 11> ConsBrotherTexts = {{
    {ConsBrotherText::LeftExcluders,
     "In the case under examination, the deceased has left the following:\r\n\r\n"},
    {ConsBrotherText::Excluded,
     "\r\nIn presence of ANY one of above the Consanguine Brother can not succeed.\r\n\r\n"
     "So, the share of Consanguine Brother in the net estate wealth will be Zero.\r\n"},
    {ConsBrotherText::LeftConsSister,
     "In the case under examination, the deceased has NOT left son, daughter, son's son, son's "
     "daughter, son's son's son, son's son's daughter, Father, Father's Father, Father's Father's "
     "Father, Full brother EXCEPT Consanguine sister(s).\r\n"},
    {ConsBrotherText::ResiduaryWithSister,
     "\r\nIn absence of ALL above BUT with the Consanguine Sister, the Consanguine Brother will succeed "
     "as a Residuary (Asaba') with Consanguine Sister(s).\r\n\r\n"
     "The share of Consanguine Brother in the net estate wealth will be as Residuary (Asaba').\r\n"},
    {ConsBrotherText::NoConsBrother,
     "In the case under examination, the deceased has NOT left any Consanguine Brother. So, the share "
     "of Consanguine Brother in the net estate wealth will be Zero.\r\n"},
    {ConsBrotherText::LeftNobodyNearer,
     "In the case under examination, the deceased has NOT left son, daughter, son's son, son's "
     "daughter, son's son's son, son's son's daughter, Father, Father's Father, Father's Father's "
     "Father, Consanguine sister.\r\n"},
    {ConsBrotherText::ResiduaryAlone,
     "\r\nIn absence of ALL above, the Consanguine Brother will succeed as Residuary (Asaba').\r\n\r\n"
     "The share of Consanguine Brother in the net estate wealth will be as Residuary (Asaba').\r\n"},
    {ConsBrotherText::UnshownSisterOpening,
     "In the case under examination, the deceased has left NO Son, Son' son, Son's Son's Son, Father, "
     "Grand Father or Great Grand Father, descending Daughters, FULL Brother or Sister or Consanguine "
     "Brother:\r\n"},
    {ConsBrotherText::UnshownSisterAsSharer,
     "\r\nIn absence of ALL of above, the Consanguine Sister will succeed as a SHARER.\r\n\r\n"
     "If number of Consanguine Sisters is one she will get one half (1/2) and if more than one then two "
     "third (2/3) in the net estate wealth as a SHARER.\r\n"},
    {ConsBrotherText::LeftNoExcluder,
     "In the case under examination, the deceased has NOT left son, son's son, son's son's son, Father, "
     "Father's Father, Father's Father's Father.\r\n"},
    {ConsBrotherText::ResiduaryBesideDaughters,
     "\r\nThe daughter(s)/ descending daughter(s), if present, will take their share and the "
     "Consanguine Brother will receive as Residuary (Asaba').\r\n\r\n"
     "The share of Consanguine Brother in the net estate wealth will be as Residuary (Asaba').\r\n"},
}};

inline constexpr std::string_view ConsSisterBesideFullSisterText =
    "\r\nIn presence of Full Sister and any one of the above, Consanguine Sister can not inherit. So, share "
    "of consanguine sister in the net estate wealth is zero.";

}  // namespace qismora
