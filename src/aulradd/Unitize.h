#pragma once

#include "case/CaseRecord.h"
#include "case/CaseScreen.h"

namespace qismora {

/// Brings the fractions of all sharers to one denominator, which gives the fraction of their sum and of the
/// residue. An overflow ends it silently, another failure with a message; what was stored by then stays, all
/// else is that of the run before.
void UnitizeShares(CaseRecord& c, CaseScreen& screen);

/// Rewrites the fractions of the sharers after Aul or Radd. Any failure ends it silently, with the fractions
/// half rewritten.
void ReviseFractions(CaseRecord& c);

}  // namespace qismora
