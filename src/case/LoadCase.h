#pragma once

#include "case/CaseRecord.h"
#include "case/CaseScreen.h"

namespace qismora {

/// Reads what the user typed into the record, checks it and derives the net estate. It is no transaction:
/// each value is stored as soon as it is read, and the first failed check stops the reading, so that the
/// record may be left half new and half old. A hard failure sets InputFailed; a soft one only shows its
/// message, and the caller goes on with what the record holds. No failure leaves it.
void LoadCase(CaseRecord& c, CaseScreen& screen);

/// Reads the check boxes of the class II residuaries and whether any is ticked.
void ReadClassIIChecks(CaseRecord& c, CaseScreen& screen);

}  // namespace qismora
