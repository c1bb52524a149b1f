#pragma once

#include <array>
#include <string_view>

// The sentences of the ultimate father: pieces that go around his name.
// Word for word the system's own: misspellings and double blanks stand as they are.

namespace qismora {

inline constexpr std::string_view NoFatherText =
    "In the case under examination, the deceased has neither alive Father, grand Father or great grand "
    "Father. So the share of the ultimate father in the net estate wealth is Zero.";

// Shown by no rule.
inline constexpr std::array<std::string_view, 2> FatherResiduaryTexts = {
    // 0
    "In the case under examination, the ultimate father of the deceased is his ",
    // 1
    ". Moreover, the deceased has neither Sons, grand Sons or great grand Sons. So the ultimate father "
    "will also receive share as a Residiuary. This will be in addition to his normal share which is "
    "one sixth (1/6) of the net estate wealth i.e.",
};

inline constexpr std::array<std::string_view, 3> FatherWithSonsTexts = {
    // 0
    "In the case under examination, the ultimate father of the deceased is his ",
    // 1
    ". Further, alongwith presence of Sons/ grand Sons/ great grand Sons the deceased has:",
    // 2
    "In such case, the ultimate father can not receive rights of a Residuary (Asaba') but will be "
    "entitled to receive only normal share of one sixth (1/6) of the net estate wealth i.e.:\r\n",
};

// Shown by no rule.
inline constexpr std::array<std::string_view, 2> FatherNoDescendantTexts = {
    // 0
    "In the case under examination, the ultimate father of the deceased is his ",
    // 1
    ". Further, to this the deceased has left no descendant i.e. neither son/ grandson/ great "
    "grandson/ daughter/ grand daughter/ great grand daughter. So, the ",
};

inline constexpr std::string_view FatherAsResiduaryText =
    "Ultimate Father receives as Residuary (Asaba'). Press command button Residuaries (Asaba't) to get "
    "desired result.\r\n";

inline constexpr std::string_view FatherAsSharerAndResiduaryText =
    "Ultimate Father receives as Residuary (Asaba') ALSO alongwith one sixth (1/6) share.\r\n";

}  // namespace qismora
