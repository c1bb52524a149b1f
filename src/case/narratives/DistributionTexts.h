#pragma once

#include <string_view>

// The texts before and after a distribution. The name of the deceased follows each opening.
// Fixed wording; do not correct.

namespace qismora {

inline constexpr std::string_view SummaryOpening =
    "The numbers shown within first brackets are the number of such Quranic Heirs left ALIVE by the deceased ";

inline constexpr std::string_view SummaryExplanation =
    ". The value inside the second bracket indicates the per unit value of share. The distribution of Gross "
    "Estate left by the deceased BETWEEN Quranic heirs and Residuaries (Asaba't) will be as under:\r\n\r\n";

inline constexpr std::string_view AulRaddOpening =
    "The numbers shown within first brackets are the number of such Quranic Heirs left ALIVE by the deceased  ";

inline constexpr std::string_view AulExplanation =
    ". The distribution of Gross Estate left by the deceased AMONG Quranic heirs only are shown below, because "
    "there is no Residuary (Asaba') ALIVE, the method of 'Aul' doctrine has been applied. The value inside the "
    "second bracket indicates the share before applying 'Aul' doctrine, while value within the third brackets "
    "indicates per unit share after applying 'Aul'. The distribution of Gross Estate left by the deceased AMONG "
    "Quranic heirs will be as under:\r\n\r\n";

inline constexpr std::string_view RaddExplanation =
    ". The distribution of Gross Estate left by the deceased AMONG Quranic heirs only is shown below, because "
    "there is no Residuary (Asaba') ALIVE, the method of 'Radd' doctrine has been applied. The value inside the "
    "second bracket indicates the share before applying 'Radd' doctrine, while value within the third brackets "
    "indicates per unit share after applying 'Radd'. The distribution of Gross Estate left by the deceased AMONG "
    "Quranic heirs will be as under:\r\n\r\n";

inline constexpr std::string_view NobodyTakesText =
    "\r\nEITHER NO RESIDUARY (ASABA') FOUND IN THE SET CONDITIONS OR RESIDUE IS ZERO. IN ABSENCE OF ANY "
    "RESIDUARY (ASABA'), THE RESIDUE (IF ANY) SHALL BE DISTRIBUTED PROPORTIONATELY AMONG SHARERS EXCEPTING "
    "WIFE AND HUSBAND, USING RADD DOCTRINE. IF ONLY WIFE OR HUSBAND IS SHARER THEN THE RESIDUE (IF ANY) WILL "
    "GO TO DISTANT KINDRED (ZAWIL-ARHAM).";

}  // namespace qismora
