#pragma once

#include "case/CaseRecord.h"
#include "case/CaseScreen.h"

namespace qismora {

/// Collects amount, standing and fraction of every kind of heir, by the box of the heir.
void FillSummaryTable(CaseRecord& c);

/// One line for each heir entered, a note, the sum of the shares and the residue; fills SummaryReport.
void BuildSummarizedShares(CaseRecord& c, const CaseScreen& screen);

}  // namespace qismora
