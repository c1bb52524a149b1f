#pragma once

#include "case/CaseRecord.h"
#include "case/CaseScreen.h"

namespace qismora {

/// Writes the plain distribution of the sharers to SummaryText. The lines of the residuaries follow it.
void BuildSharerSummary(CaseRecord& c, const CaseScreen& screen);

/// Writes the distribution after Aul to SummaryText and the one after Radd to RaddText, from the factors and
/// fractions of the record. The adjusted amounts exist only in these texts.
void BuildAulRaddTexts(CaseRecord& c, const CaseScreen& screen);

}  // namespace qismora
