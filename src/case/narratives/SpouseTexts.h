#pragma once

#include <string_view>

// The sentences of the wife and the husband.
// Fixed wording; do not correct.

namespace qismora {

inline constexpr std::string_view NoHusbandText =
    "\r\nIn the case under examination, since the deceased's husband is not alive, so the share of "
    "husband in the net estate wealth is zero.";

inline constexpr std::string_view HusbandWithChildrenText =
    "\r\nIn the case under examination, since the deceased has left sons/ daughters, the share of "
    "husband will be one fourth (1/4) of the net estate wealth i.e.";

inline constexpr std::string_view HusbandWithGrandChildrenText =
    "\r\nIn the case under examination, though the deceased has left no sons/ daughters alive but has "
    "left grandsons/ grand daughters, the share of husband in the net estate wealth will be one fourth "
    "(1/4) i.e.";

inline constexpr std::string_view HusbandNoDescendantText =
    "\r\nIn the case under examination, since the deceased has no descendants, so the share of husband "
    "in the net estate wealth will be one half (1/2) i.e.";

inline constexpr std::string_view NoWifeText =
    "In the case under examination, since the deceased has no wife/ wives, so the share of wife/ wives "
    "in the net estate wealth is zero.";

inline constexpr std::string_view WifeWithChildrenText =
    "In the case under examination, since the deceased has left sons/ daughters, the share of wife/ "
    "wives will be one eighth (1/8) of the net estate wealth i.e.";

inline constexpr std::string_view WifeWithGrandChildrenText =
    "In the case under examination, though the deceased has left no sons/ daughters alive but has left "
    "grandsons/ grand daughters, the share of wife/ wives in the net estate wealth will be one eighth "
    "(1/8) i.e.";

inline constexpr std::string_view WifeNoDescendantText =
    "In the case under examination, since the deceased has no descendants, so the share of wife/ wives "
    "in the net estate wealth will be one fourth (1/4) i.e.";

}  // namespace qismora
