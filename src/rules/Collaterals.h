#pragma once

#include <string>

#include "base/Text.h"
#include "case/CaseRecord.h"
#include "case/ResiduaryFlags.h"

namespace qismora {

// What the rules of the full and the consanguine brothers and sisters share.

/// A male descendant or a male ascendant lives: he excludes every brother and sister.
bool HasMaleLine(const CaseRecord& c);

/// The counts of those who exclude, one a line.
std::string ExcludingList(const CaseRecord& c);
/// The counts of the daughters of the three lines, one a line.
std::string DaughtersList(const CaseRecord& c);
/// The end of a residuary's narrative; the flag stands on the last line as the word True.
std::string ResiduaryTail(const CaseRecord& c, ResiduaryFlag flag);

inline constexpr std::string_view NilTail = "\r\n\tNIL";

}  // namespace qismora
