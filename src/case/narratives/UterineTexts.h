#pragma once

#include <array>
#include <string_view>

// The sentences of the uterine sister and brother.
// Word for word the system's own: misspellings and double blanks stand as they are.

namespace qismora {

// Entries 7 and 8 are shown by no rule.
inline constexpr std::array<std::string_view, 9> UterineSisterTexts = {
    // 0
    "In the case under examination, the deceased has left the following:\r\n\r\n",
    // 1
    "\r\nIn presence of ANY one of above the Uterine Sister can not succeed.\r\n\r\n"
    "So, the share of Uterine Sister in the net estate wealth will be Zero.\r\n",
    // 2
    "In the case under examination, the deceased has NOT left son, daughter, son's son, son's "
    "daughter, son's son's son, son's son's daughter, Father, Father's Father, Father's Father's "
    "Father, Full brother EXCEPT UTERINE Brother(s).\r\n",
    // 3
    "\r\nIn absence of ALL above BUT with Uterine Brother(s) the Uterine Sister succeeds as a "
    "sharer.\r\n\r\n"
    "The collective share of Uterine Sister with Uterine Brother in the net estate wealth will be one "
    "third (1/3) i.e.\r\n",
    // 4
    "In the case under examination, the deceased has NOT left any Uterine Sister. So, the share of "
    "Uterine Sister in the net estate wealth will be Zero.\r\n",
    // 5
    "In the case under examination, the deceased has NOT left son, daughter, son's son, son's "
    "daughter, son's son's son, son's son's daughter, Father, Father's Father, Father's Father's "
    "Father, Uterine Brother(s).\r\n",
    // 6
    "\r\nIn absence of ALL of the above, the Uterine Sister will succeed as a SHARER.\r\n"
    "Under the above situation, since number of Uterine Sisters is only ONE, her share in the net "
    "estate wealth will be one sixth (1/6) i.e.",
    // 7
    "In the case under examination, the deceased has NOT left son, daughter, son's son, son's "
    "daughter, son's son's son, son's son's daughter, Father, Father's Father, Father's Father's "
    "Father, Uterine Brother(s).\r\n",
    // 8
    "\r\nIn absence of ALL of above, the Uterine Sister will succeed as SHARER.\r\n"
    "Under the above situation, Uterine Sister's share in the net estate wealth will be one third "
    "(1/6) i.e.",
};

// Entries 5 and 6 are shown by no rule; the words "one third (1/6)" of entry 8 are wrong, its figure is
// right.
inline constexpr std::array<std::string_view, 9> UterineBrotherTexts = {
    // 0
    "In the case under examination, the deceased has left the following:\r\n\r\n",
    // 1
    "\r\nIn presence of ANY one of above the Uterine Brother can not succeed.\r\n\r\n"
    "So, the share of Uterine Brother in the net estate wealth will be Zero.\r\n",
    // 2
    "In the case under examination, the deceased has NOT left son, daughter, son's son, son's "
    "daughter, son's son's son, son's son's daughter, Father, Father's Father, Father's Father's "
    "Father, Full brother EXCEPT UTERINE Sister(s).\r\n",
    // 3
    "\r\nIn absence of ALL above BUT with Uterine Sister(s) the Uterine Brother succeeds as a "
    "sharer.\r\n\r\n"
    "The collective share of Uterine Brother with Uterine Sister in the net estate wealth will be one "
    "third (1/3) i.e.\r\n",
    // 4
    "In the case under examination, the deceased has NOT left any Uterine Brother. So, the share of "
    "Uterine Brother in the net estate wealth will be Zero.\r\n",
    // 5
    "In the case under examination, the deceased has NOT left son, daughter, son's son, son's "
    "daughter, son's son's son, son's son's daughter, Father, Father's Father, Father's Father's "
    "Father, Uterine Sister(s).\r\n",
    // 6
    "\r\nIn absence of ALL of above, the Uterine Brother will succeed as a SHARER.\r\n"
    "Under the above situation, Uterine Brothers' share in the net estate wealth will be one third "
    "(1/3) i.e.",
    // 7
    "In the case under examination, the deceased has NOT left son, daughter, son's son, son's "
    "daughter, son's son's son, son's son's daughter, Father, Father's Father, Father's Father's "
    "Father, Uterine Sister(s).\r\n",
    // 8
    "\r\nIn absence of ALL of above, the Uterine Brother will succeed as SHARER.\r\n"
    "Under the above situation, Uterine Brother's share in the net estate wealth will be one third "
    "(1/6) i.e.",
};

}  // namespace qismora
