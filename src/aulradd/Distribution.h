#pragma once

#include "case/CaseRecord.h"
#include "case/CaseScreen.h"

namespace qismora {

/// The plain distribution of the sharers, which the residuaries' lines follow; fills SummaryText.
void BuildSharerSummary(CaseRecord& c, const CaseScreen& screen);

/// The distributions after Aul, in SummaryText, and after Radd, in RaddText, with the factors and fractions
/// as they stand. The adjusted amounts exist only in these texts.
void BuildAulRaddTexts(CaseRecord& c, const CaseScreen& screen);

}  // namespace qismora
