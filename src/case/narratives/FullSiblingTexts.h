#pragma once

#include "case/narratives/NarrativeTable.h"

// The sentences of the full brother and the full sister.
// Fixed wording; do not correct.

namespace qismora {

enum class FullBrotherText {
  LeftExcluders,
  Excluded,
  LeftDaughters,
  ResiduaryBesideDaughters,
  NoFullBrother,
  LeftFullSister,
  ResiduaryWithSister,
  LeftNobodyNearer,
  ResiduaryAlone
};
inline constexpr NarrativeTable<FullBrotherText, 9> FullBrotherTexts = {{
    {FullBrotherText::LeftExcluders,
     "In the case under examination, the deceased has left the following:\r\n\r\n"},
    {FullBrotherText::Excluded,
     "\r\nIn presence of ANY one of above the FULL Brother can not succeed.\r\n\r\n"
     "So, the share of Full Brother in the net estate wealth will be Zero.\r\n"},
    {FullBrotherText::LeftDaughters,
     "In the case under examination, the deceased has left NO Son, Son' son, Son's Son's Son, Father, "
     "Grand Father or Great Grand Father BUT has the following:\r\n"},
    {FullBrotherText::ResiduaryBesideDaughters,
     "In presence of ANY one of above, the daughters/ descending daughters will take their share first "
     "and the FULL Brother (with Full Sister, if alive) will succeed as Residuary (Asaba').\r\n\r\n"
     "So, the share of Full Brother in the net estate wealth as a Residuary (Asaba') will be:\r\n"},
    {FullBrotherText::NoFullBrother,
     "In the case under examination, the deceased has NOT left any FULL Brother. So, the share of Full "
     "Brother in the net estate wealth will be Zero.\r\n"},
    {FullBrotherText::LeftFullSister,
     "In the case under examination, the deceased has left NO Son, Son' son, Son's Son's Son, Father, "
     "Grand Father or Great Grand Father, Daughters/ descending Daughters BUT has left FULL Brother(s) "
     "and FULL Sister(s):\r\n"},
    {FullBrotherText::ResiduaryWithSister,
     "\r\nUnder the above condition the FULL Brother will succeed as a Residuary (Asaba') with the Full "
     "Sister.\r\n\r\n"
     "So, the share of Full Brother in the net estate wealth as a Residuary (Asaba') will be:\r\n"},
    {FullBrotherText::LeftNobodyNearer,
     "In the case under examination, the deceased has left NO Son, Son' son, Son's Son's Son, Father, "
     "Grand Father or Great Grand Father, Daughters/ descending Daughters and FULL Sister(s):\r\n"},
    {FullBrotherText::ResiduaryAlone,
     "\r\nIn absence of ALL of above, the FULL Brother will succeed as a Residuary (Asaba').\r\n\r\n"
     "So, the share of Full Brother in the net estate wealth as a Residuary (Asaba') will be:\r\n"},
}};

enum class FullSisterText {
  LeftExcluders,
  Excluded,
  LeftDaughtersAndBrother,
  ResiduaryWithBrotherBesideDaughters,
  NoFullSister,
  LeftFullBrother,
  ResiduaryWithBrother,
  LeftNobodyNearer,
  SharerOfHalfOrTwoThirds,
  LeftDaughters,
  ResiduaryBesideDaughters
};
inline constexpr NarrativeTable<FullSisterText, 11> FullSisterTexts = {{
    {FullSisterText::LeftExcluders,
     "In the case under examination, the deceased has left the following:\r\n\r\n"},
    {FullSisterText::Excluded,
     "\r\nIn presence of ANY one of above the FULL Sister can not succeed.\r\n\r\n"
     "So, the share of Full Sister in the net estate wealth will be Zero.\r\n"},
    {FullSisterText::LeftDaughtersAndBrother,
     "In the case under examination, the deceased has left NO Son, Son' son, Son's Son's Son, Father, "
     "Grand Father or Great Grand Father BUT has the following:\r\n"},
    {FullSisterText::ResiduaryWithBrotherBesideDaughters,
     "\r\nIn presence of ANY one of above, the FULL Sister will succeed as a Residuary (Asaba') with "
     "Full Brother. Daughter(s)/ descending daughter(s) will take their share.\r\n\r\n"
     "So, the share of Full Sister in the net estate wealth as a Residuary (Asaba') will be:\r\n"},
    {FullSisterText::NoFullSister,
     "In the case under examination, the deceased has NOT left any FULL Sister. So, the share of Full "
     "Sister in the net estate wealth will be Zero.\r\n"},
    {FullSisterText::LeftFullBrother,
     "In the case under examination, the deceased has left NO Son, Son' son, Son's Son's Son, Father, "
     "Grand Father or Great Grand Father, Daughters, descending Daughters BUT has left FULL "
     "Brother(s):\r\n"},
    {FullSisterText::ResiduaryWithBrother,
     "\r\nUnder the above condition and in presence of Full Brother, the FULL Sister will succeed as a "
     "Residuary (Asaba') with the Full Brother.\r\n\r\n"
     "So, the share of Full Sister in the net estate wealth as a Residuary (Asaba') will be:\r\n"},
    {FullSisterText::LeftNobodyNearer,
     "In the case under examination, the deceased has left NO Son, Son' son, Son's Son's Son, Father, "
     "Grand Father or Great Grand Father, Daughters, descending Daughters and FULL Brother(s).\r\n"},
    {FullSisterText::SharerOfHalfOrTwoThirds,
     "\r\nIn absence of ALL of above, the FULL Sister will succeed as a SHARER.\r\n\r\n"
     "If number of Full Sisters is one she will get one half (1/2) and if more than one then two third "
     "(2/3) in the net estate wealth as a SHARER.\r\n"},
    {FullSisterText::LeftDaughters,
     "In the case under examination, the deceased has left NO Son, Son' son, Son's Son's Son, Father, "
     "Grand Father or Great Grand Father BUT has left FULL Sister(s) with daughter(s)/ descending "
     "daughter(s).:\r\n"},
    {FullSisterText::ResiduaryBesideDaughters,
     "\r\nUnder the above conditions, daughter(s)/ descending daughter(s) will take their shares and "
     "the FULL Sister will succeed as a Residuary (Asaba').\r\n\r\n"
     "So, the share of Full Sister in the net estate wealth as a Residuary (Asaba') will be:\r\n"},
}};

}  // namespace qismora
