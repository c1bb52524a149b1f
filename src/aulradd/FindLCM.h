#pragma once

#include "case/CaseRecord.h"

namespace qismora {

/// Stores the least common multiple of the first LcmCount entries of LcmDen in LcmResult, and leaves the
/// reduced entries in LcmDen. It divides the entries by their common factors again and again, until the
/// largest entry does not change. So in rare cases the result is a common multiple that is not the least.
/// More than ten factors or eleven entries are the subscript failure, a result beyond a Long the overflow
/// failure.
void FindLCM(CaseRecord& c);

}  // namespace qismora
