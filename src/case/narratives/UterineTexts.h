#pragma once

#include "case/narratives/NarrativeTable.h"

// The sentences of the uterine sister and brother. The last entry of each table says "one third (1/6)"; a
// sixth is meant. Fixed wording; do not correct.

namespace qismora {

enum class UterineSisterText {
  LeftExcluders,
  Excluded,
  LeftOtherUterines,
  ThirdTogether,
  NoUterineSister,
  LeftOneUterineSister,
  SixthAlone,
  UnshownOpening,
  UnshownSixth
};
inline constexpr NarrativeTable<UterineSisterText, 9> UterineSisterTexts = {{
    {UterineSisterText::LeftExcluders,
     "In the case under examination, the deceased has left the following:\r\n\r\n"},
    {UterineSisterText::Excluded,
     "\r\nIn presence of ANY one of above the Uterine Sister can not succeed.\r\n\r\n"
     "So, the share of Uterine Sister in the net estate wealth will be Zero.\r\n"},
    {UterineSisterText::LeftOtherUterines,
     "In the case under examination, the deceased has NOT left son, daughter, son's son, son's "
     "daughter, son's son's son, son's son's daughter, Father, Father's Father, Father's Father's "
     "Father, Full brother EXCEPT UTERINE Brother(s).\r\n"},
    {UterineSisterText::ThirdTogether,
     "\r\nIn absence of ALL above BUT with Uterine Brother(s) the Uterine Sister succeeds as a "
     "sharer.\r\n\r\n"
     "The collective share of Uterine Sister with Uterine Brother in the net estate wealth will be one "
     "third (1/3) i.e.\r\n"},
    {UterineSisterText::NoUterineSister,
     "In the case under examination, the deceased has NOT left any Uterine Sister. So, the share of "
     "Uterine Sister in the net estate wealth will be Zero.\r\n"},
    {UterineSisterText::LeftOneUterineSister,
     "In the case under examination, the deceased has NOT left son, daughter, son's son, son's "
     "daughter, son's son's son, son's son's daughter, Father, Father's Father, Father's Father's "
     "Father, Uterine Brother(s).\r\n"},
    {UterineSisterText::SixthAlone,
     "\r\nIn absence of ALL of the above, the Uterine Sister will succeed as a SHARER.\r\n"
     "Under the above situation, since number of Uterine Sisters is only ONE, her share in the net "
     "estate wealth will be one sixth (1/6) i.e."},
    {UterineSisterText::UnshownOpening,
     "In the case under examination, the deceased has NOT left son, daughter, son's son, son's "
     "daughter, son's son's son, son's son's daughter, Father, Father's Father, Father's Father's "
     "Father, Uterine Brother(s).\r\n"},
    {UterineSisterText::UnshownSixth,
     "\r\nIn absence of ALL of above, the Uterine Sister will succeed as SHARER.\r\n"
     "Under the above situation, Uterine Sister's share in the net estate wealth will be one third "
     "(1/6) i.e."},
}};

enum class UterineBrotherText {
  LeftExcluders,
  Excluded,
  LeftOtherUterines,
  ThirdTogether,
  NoUterineBrother,
  UnshownOpening,
  UnshownThird,
  LeftOneUterineBrother,
  SixthAlone
};
inline constexpr NarrativeTable<UterineBrotherText, 9> UterineBrotherTexts = {{
    {UterineBrotherText::LeftExcluders,
     "In the case under examination, the deceased has left the following:\r\n\r\n"},
    {UterineBrotherText::Excluded,
     "\r\nIn presence of ANY one of above the Uterine Brother can not succeed.\r\n\r\n"
     "So, the share of Uterine Brother in the net estate wealth will be Zero.\r\n"},
    {UterineBrotherText::LeftOtherUterines,
     "In the case under examination, the deceased has NOT left son, daughter, son's son, son's "
     "daughter, son's son's son, son's son's daughter, Father, Father's Father, Father's Father's "
     "Father, Full brother EXCEPT UTERINE Sister(s).\r\n"},
    {UterineBrotherText::ThirdTogether,
     "\r\nIn absence of ALL above BUT with Uterine Sister(s) the Uterine Brother succeeds as a "
     "sharer.\r\n\r\n"
     "The collective share of Uterine Brother with Uterine Sister in the net estate wealth will be one "
     "third (1/3) i.e.\r\n"},
    {UterineBrotherText::NoUterineBrother,
     "In the case under examination, the deceased has NOT left any Uterine Brother. So, the share of "
     "Uterine Brother in the net estate wealth will be Zero.\r\n"},
    {UterineBrotherText::UnshownOpening,
     "In the case under examination, the deceased has NOT left son, daughter, son's son, son's "
     "daughter, son's son's son, son's son's daughter, Father, Father's Father, Father's Father's "
     "Father, Uterine Sister(s).\r\n"},
    {UterineBrotherText::UnshownThird,
     "\r\nIn absence of ALL of above, the Uterine Brother will succeed as a SHARER.\r\n"
     "Under the above situation, Uterine Brothers' share in the net estate wealth will be one third "
     "(1/3) i.e."},
    {UterineBrotherText::LeftOneUterineBrother,
     "In the case under examination, the deceased has NOT left son, daughter, son's son, son's "
     "daughter, son's son's son, son's son's daughter, Father, Father's Father, Father's Father's "
     "Father, Uterine Sister(s).\r\n"},
    {UterineBrotherText::SixthAlone,
     "\r\nIn absence of ALL of above, the Uterine Brother will succeed as SHARER.\r\n"
     "Under the above situation, Uterine Brother's share in the net estate wealth will be one third "
     "(1/6) i.e."},
}};

}  // namespace qismora
