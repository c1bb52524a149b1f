#pragma once

#include "case/CaseRecord.h"
#include "case/CaseScreen.h"

namespace qismora {

/// Fill ReportHeader, the beginning of a report: the inputs and the share claimants, of all kinds or of the
/// entered ones.
void BuildFullHeader(CaseRecord& c, const CaseScreen& screen);
void BuildSelectedHeader(CaseRecord& c, const CaseScreen& screen);

/// Whether the field has a number above 0, as ParsePrefix or as ParseStrict reads it. If the reading fails,
/// the heir counts as entered.
bool IsEnteredLeniently(const CaseScreen& screen, int index);
bool IsEnteredStrictly(const CaseScreen& screen, int index);

}  // namespace qismora
