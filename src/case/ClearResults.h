#pragma once

#include "case/CaseRecord.h"
#include "case/CaseScreen.h"

namespace qismora {

/// Clears what a run of the rules leaves, before the next one. SonsSonsDaughterShare, ConsBrotherShare,
/// EachWifeShare, FatherResidue, ClassIIResidue and ResidueUnit survive it, and so do the counts, the estate
/// and the outcome of the sufficiency test: each is replaced only when its own step runs.
void ClearResults(CaseRecord& c, CaseScreen& screen);

}  // namespace qismora
