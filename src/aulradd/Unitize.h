#pragma once

#include "case/CaseRecord.h"
#include "case/CaseScreen.h"

namespace qismora {

/// Brings the fractions of all sharers to one denominator, and stores the fractions of their sum and of the
/// residue. An overflow ends it silently, any other failure with a message. What it has not yet stored then
/// keeps the values of the previous run.
void UnitizeShares(CaseRecord& c, CaseScreen& screen);

/// Rewrites the fractions of the sharers after Aul or Radd. Any failure ends it silently; the remaining
/// fractions are not rewritten.
void ReviseFractions(CaseRecord& c);

}  // namespace qismora
