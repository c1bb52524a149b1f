#pragma once

#include "case/CaseRecord.h"
#include "case/CaseScreen.h"

namespace qismora {

/// The share of the son's daughters: in the daughters' place one half or two thirds, one sixth beside one
/// daughter, the residue beside a son's son or a lower son's son.
void ShareOfSonsDaughter(CaseRecord& c, CaseScreen& screen);

}  // namespace qismora
