#pragma once

#include "case/CaseRecord.h"
#include "case/CaseScreen.h"

namespace qismora {

/// Collects amount, standing and fraction of every kind of heir, by the index of the heir's field.
void FillSummaryTable(CaseRecord& c);

/// Fills SummaryReport: one line for each heir entered, a note, the sum of the shares and the residue.
void BuildSummarizedShares(CaseRecord& c, const CaseScreen& screen);

}  // namespace qismora
