#pragma once

#include "case/CaseRecord.h"
#include "case/CaseScreen.h"

namespace qismora {

/// Whether the shares fit the estate: sums the amounts, computes the residue, and decides between no
/// adjustment, Aul, Aul beside residuaries, Radd, and a surplus for a class II residuary. The decision is
/// made on the amounts by exact comparison with zero, never on the fractions.
void SufficiencyTest(CaseRecord& c, CaseScreen& screen);

}  // namespace qismora
