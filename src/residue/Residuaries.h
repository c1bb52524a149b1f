#pragma once

#include "case/CaseRecord.h"
#include "case/CaseScreen.h"

namespace qismora {

/// The Residuaries command: clears the results, runs the rules of all sharers, tests whether the shares fit
/// the estate, and divides the residue. An overflow of the Integer counts and fractions is a failure that
/// ends it.
void RunResiduaries(CaseRecord& c, CaseScreen& screen);

/// Loads the case and runs the rule of every kind of sharer. The order is part of the law: a rule may read
/// what an earlier one has stored. A failed load ends it early.
void RunAllSharers(CaseRecord& c, CaseScreen& screen);

}  // namespace qismora
