#pragma once

#include "case/CaseRecord.h"

namespace qismora {

/// Stores the least common multiple of the first LcmCount entries of LcmDen in LcmResult, and leaves the
/// reduced entries in LcmDen. It divides the entries by their common factors again and again, until the
/// largest entry does not change. So in rare cases the result is a common multiple that is not the least.
/// Throws Failure(SubscriptOutOfRange) for more than ten factors or eleven entries, Failure(Overflow) for a
/// result beyond a Long.
void FindLCM(CaseRecord& c);

}  // namespace qismora
