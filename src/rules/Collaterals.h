#pragma once

#include <string>

#include "case/CaseRecord.h"

namespace qismora {

// What the rules of the full and the consanguine brothers and sisters share.

/// Whether a male descendant or ascendant is alive, who excludes every brother and sister (Quran 4:176). That
/// a grandfather does so is the ruling of Abu Bakr, which Abu Hanifa follows.
bool HasMaleExcluder(const CaseRecord& c);

/// The counts of those who exclude, one per line.
std::string ExcludingList(const CaseRecord& c);
/// The counts of the female descendants, one per line.
std::string DaughtersList(const CaseRecord& c);

/// The end of a residuary's narrative. The word "True" shows the flag that the rule has just set. Fixed
/// wording; do not correct.
inline constexpr std::string_view ResiduaryTail = "\r\n\tRESIDUARY (ASABA')\r\nTrue";
inline constexpr std::string_view NilTail = "\r\n\tNIL";

}  // namespace qismora
