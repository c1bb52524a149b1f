#pragma once

#include "case/CaseRecord.h"
#include "case/CaseScreen.h"

namespace qismora {

/// Gives the residue to the first class of residuaries that the chain of tests finds ("what remains goes to
/// the nearest male", report of Ibn Abbas), and shows the distribution. A male takes two units and a female
/// one (Quran 4:11, 4:176). The amounts are per head. Counts and fractions are Integers: their overflow is a
/// failure that ends the command.
void ResiduaryDistribution(CaseRecord& c, CaseScreen& screen);

}  // namespace qismora
