#pragma once

#include "case/CaseRecord.h"
#include "case/CaseScreen.h"

namespace qismora {

/// Reads what the user typed into the record, checks it and derives the net estate. Each value is stored as
/// soon as it is read. The first failed check stops the reading, so the record may hold both new and old
/// values. A hard failure sets InputFailed. A soft one only shows its message, and the caller continues with
/// what the record holds. No failure leaves it.
void LoadCase(CaseRecord& c, CaseScreen& screen);

/// Reads the check boxes of the class II residuaries, and sets the flag ClassIITicked if any is ticked.
void ReadClassIIChecks(CaseRecord& c, CaseScreen& screen);

}  // namespace qismora
