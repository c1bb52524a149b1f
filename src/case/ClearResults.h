#pragma once

#include "case/CaseRecord.h"
#include "case/CaseScreen.h"

namespace qismora {

/// Clears the results of the previous run of the rules. Some values stay until the step that sets them runs
/// again: SonsSonsDaughterShare, ConsBrotherShare, EachWifeShare, FatherResidue, ClassIIResidue, ResidueUnit,
/// the counts, the estate and the outcome of the sufficiency test.
void ClearResults(CaseRecord& c, CaseScreen& screen);

}  // namespace qismora
