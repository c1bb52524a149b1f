#pragma once

#include "case/CaseRecord.h"

namespace qismora {

/// Stores the least common multiple of the first LcmCount entries of LcmDen in LcmResult, and leaves the
/// reduced entries in LcmDen. It divides by common factors as one does by hand in a ladder, and stops when a
/// sweep does not change the largest entry, so that in rare cases the result is a common multiple that is not
/// the least. More than ten factors or eleven entries are the subscript failure, a result beyond a Long the
/// overflow failure.
void FindLCM(CaseRecord& c);

}  // namespace qismora
