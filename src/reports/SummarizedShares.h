#pragma once

#include "case/CaseRecord.h"
#include "case/CaseScreen.h"

namespace qismora {

/// Stores the amount, the standing and the fraction of every kind of heir by the index of its field.
void FillSummaryTable(CaseRecord& c);

/// Fills SummaryReport: one line for each heir entered, a note, the sum of the shares and the residue.
void BuildSummarizedShares(CaseRecord& c, const CaseScreen& screen);

}  // namespace qismora
