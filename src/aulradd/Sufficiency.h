#pragma once

#include "case/CaseRecord.h"
#include "case/CaseScreen.h"

namespace qismora {

/// Decides whether the shares fit the estate. It adds up the amounts, computes the residue, and chooses
/// between no adjustment, Aul, Aul beside residuaries, Radd, and a surplus for a class II residuary. The
/// amounts decide, by exact comparison with zero, never the fractions. Without a full report it shows a
/// message about Aul or Radd.
void SufficiencyTest(CaseRecord& c, CaseScreen& screen);

}  // namespace qismora
