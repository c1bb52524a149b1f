#pragma once

#include "case/CaseRecord.h"
#include "case/CaseScreen.h"

namespace qismora {

/// Gives the residue to the first class of residuaries that the chain of tests finds, and shows the
/// distribution. A male counts two units and a female one (Quran 4:11, 4:176); the amounts are those of one
/// head. All counts and fractions are Integer arithmetic: an overflow ends the command.
void ResiduaryDistribution(CaseRecord& c, CaseScreen& screen);

}  // namespace qismora
