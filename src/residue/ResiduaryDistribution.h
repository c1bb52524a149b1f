#pragma once

#include "case/CaseRecord.h"
#include "case/CaseScreen.h"

namespace qismora {

/// Gives the residue to the first class of residuaries that the chain of tests finds, and shows the
/// distribution ("what remains goes to the nearest male", report of Ibn Abbas). A male counts two units and
/// a female one (Quran 4:11, 4:176); the amounts are per head. All counts and fractions are Integers: an
/// overflow ends the command.
void ResiduaryDistribution(CaseRecord& c, CaseScreen& screen);

}  // namespace qismora
