#pragma once

#include "case/CaseRecord.h"
#include "case/CaseScreen.h"

namespace qismora {

/// Fill ReportHeader, the beginning of a report: the inputs and the share claimants, of all kinds or of the
/// entered ones.
void BuildFullHeader(CaseRecord& c, const CaseScreen& screen);
void BuildSelectedHeader(CaseRecord& c, const CaseScreen& screen);

/// Whether the field of an heir has a number above 0. The fields of the spouse and the descendants are read
/// by ParsePrefix, the others by ParseStrict. If the reading fails, the heir counts as entered.
bool IsEntered(const CaseScreen& screen, int field);

}  // namespace qismora
