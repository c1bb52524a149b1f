#pragma once

#include "case/CaseRecord.h"
#include "case/CaseScreen.h"

namespace qismora {

/// The Residuaries command: clears, runs all sharers, tests whether their shares fit the estate and
/// divides the residue. An overflow of the Integer counts and fractions ends it.
void RunResiduaries(CaseRecord& c, CaseScreen& screen);

/// Loads the case and runs the rule of every kind of sharer in the order that carries their results from
/// one to the next. A failed load ends it early.
void RunAllSharers(CaseRecord& c, CaseScreen& screen);

}  // namespace qismora
