#pragma once

#include <array>
#include <string_view>

// The sentences of the full brother and the full sister.
// Word for word the system's own: misspellings and double blanks stand as they are.

namespace qismora {

inline constexpr std::array<std::string_view, 9> FullBrotherTexts = {
    // 0
    "In the case under examination, the deceased has left the following:\r\n\r\n",
    // 1
    "\r\nIn presence of ANY one of above the FULL Brother can not succeed.\r\n\r\n"
    "So, the share of Full Brother in the net estate wealth will be Zero.\r\n",
    // 2
    "In the case under examination, the deceased has left NO Son, Son' son, Son's Son's Son, Father, "
    "Grand Father or Great Grand Father BUT has the following:\r\n",
    // 3
    "In presence of ANY one of above, the daughters/ descending daughters will take their share first "
    "and the FULL Brother (with Full Sister, if alive) will succeed as Residuary (Asaba').\r\n\r\n"
    "So, the share of Full Brother in the net estate wealth as a Residuary (Asaba') will be:\r\n",
    // 4
    "In the case under examination, the deceased has NOT left any FULL Brother. So, the share of Full "
    "Brother in the net estate wealth will be Zero.\r\n",
    // 5
    "In the case under examination, the deceased has left NO Son, Son' son, Son's Son's Son, Father, "
    "Grand Father or Great Grand Father, Daughters/ descending Daughters BUT has left FULL Brother(s) "
    "and FULL Sister(s):\r\n",
    // 6
    "\r\nUnder the above condition the FULL Brother will succeed as a Residuary (Asaba') with the Full "
    "Sister.\r\n\r\n"
    "So, the share of Full Brother in the net estate wealth as a Residuary (Asaba') will be:\r\n",
    // 7
    "In the case under examination, the deceased has left NO Son, Son' son, Son's Son's Son, Father, "
    "Grand Father or Great Grand Father, Daughters/ descending Daughters and FULL Sister(s):\r\n",
    // 8
    "\r\nIn absence of ALL of above, the FULL Brother will succeed as a Residuary (Asaba').\r\n\r\n"
    "So, the share of Full Brother in the net estate wealth as a Residuary (Asaba') will be:\r\n",
};

inline constexpr std::array<std::string_view, 11> FullSisterTexts = {
    // 0
    "In the case under examination, the deceased has left the following:\r\n\r\n",
    // 1
    "\r\nIn presence of ANY one of above the FULL Sister can not succeed.\r\n\r\n"
    "So, the share of Full Sister in the net estate wealth will be Zero.\r\n",
    // 2
    "In the case under examination, the deceased has left NO Son, Son' son, Son's Son's Son, Father, "
    "Grand Father or Great Grand Father BUT has the following:\r\n",
    // 3
    "\r\nIn presence of ANY one of above, the FULL Sister will succeed as a Residuary (Asaba') with "
    "Full Brother. Daughter(s)/ descending daughter(s) will take their share.\r\n\r\n"
    "So, the share of Full Sister in the net estate wealth as a Residuary (Asaba') will be:\r\n",
    // 4
    "In the case under examination, the deceased has NOT left any FULL Sister. So, the share of Full "
    "Sister in the net estate wealth will be Zero.\r\n",
    // 5
    "In the case under examination, the deceased has left NO Son, Son' son, Son's Son's Son, Father, "
    "Grand Father or Great Grand Father, Daughters, descending Daughters BUT has left FULL "
    "Brother(s):\r\n",
    // 6
    "\r\nUnder the above condition and in presence of Full Brother, the FULL Sister will succeed as a "
    "Residuary (Asaba') with the Full Brother.\r\n\r\n"
    "So, the share of Full Sister in the net estate wealth as a Residuary (Asaba') will be:\r\n",
    // 7
    "In the case under examination, the deceased has left NO Son, Son' son, Son's Son's Son, Father, "
    "Grand Father or Great Grand Father, Daughters, descending Daughters and FULL Brother(s).\r\n",
    // 8
    "\r\nIn absence of ALL of above, the FULL Sister will succeed as a SHARER.\r\n\r\n"
    "If number of Full Sisters is one she will get one half (1/2) and if more than one then two third "
    "(2/3) in the net estate wealth as a SHARER.\r\n",
    // 9
    "In the case under examination, the deceased has left NO Son, Son' son, Son's Son's Son, Father, "
    "Grand Father or Great Grand Father BUT has left FULL Sister(s) with daughter(s)/ descending "
    "daughter(s).:\r\n",
    // 10
    "\r\nUnder the above conditions, daughter(s)/ descending daughter(s) will take their shares and "
    "the FULL Sister will succeed as a Residuary (Asaba').\r\n\r\n"
    "So, the share of Full Sister in the net estate wealth as a Residuary (Asaba') will be:\r\n",
};

}  // namespace qismora
