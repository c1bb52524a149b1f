#pragma once

#include "case/CaseRecord.h"
#include "case/CaseScreen.h"

namespace qismora {

/// Brings the fractions of all sharers to one denominator, which gives the fraction of their sum and of the
/// residue. An overflow leaves it without a word, another failure with a message; what was written by then
/// stays, the rest is that of the run before.
void UnitizeShares(CaseRecord& c, CaseScreen& screen);

/// Rewrites the fractions of the sharers after Aul or Radd. Any failure leaves it without a word and with
/// the fractions half rewritten.
void ReviseFractions(CaseRecord& c);

}  // namespace qismora
