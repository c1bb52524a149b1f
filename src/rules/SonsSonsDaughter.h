#pragma once

#include "case/CaseRecord.h"
#include "case/CaseScreen.h"

namespace qismora {

/// The share of the son's son's daughters, one level below the son's daughters and in the same manner.
/// It reads the flag SonsDaughterWithLowerSonsSon and must run behind ShareOfSonsDaughter.
void ShareOfSonsSonsDaughter(CaseRecord& c, CaseScreen& screen);

}  // namespace qismora
