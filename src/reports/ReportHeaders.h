#pragma once

#include "case/CaseRecord.h"
#include "case/CaseScreen.h"

namespace qismora {

/// The head of a report: the inputs and the share claimants, of all kinds or of the entered ones. They fill
/// ReportHeader and step over what fails.
void BuildFullHeader(CaseRecord& c, const CaseScreen& screen);
void BuildSelectedHeader(CaseRecord& c, const CaseScreen& screen);

/// Whether the box holds a number above 0, by its leading digits or by the strict conversion. A reading that
/// fails is stepped over, and the heir counts as entered.
bool IsEnteredLeniently(const CaseScreen& screen, int box);
bool IsEnteredStrictly(const CaseScreen& screen, int box);

}  // namespace qismora
