#pragma once

#include "case/CaseRecord.h"

namespace qismora {

/// The least common multiple of the first LcmCount entries of LcmDen, left in LcmResult; LcmDen is reduced
/// to its rests. It strikes out common factors as one does by hand in a ladder and stops when a sweep leaves
/// the largest rest as it was, so that in rare cases the result is a common multiple that is not the least.
/// More than ten factors or eleven entries are the subscript failure.
void FindLCM(CaseRecord& c);

}  // namespace qismora
