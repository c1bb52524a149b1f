#pragma once

#include "case/CaseRecord.h"
#include "case/CaseScreen.h"

namespace qismora {

/// The daughters' share: one half for one, two thirds for more, the residue beside sons (Quran 4:11).
void ShareOfDaughters(CaseRecord& c, CaseScreen& screen);

/// Explains that a son, a son's son or a son's son's son takes as residuary; fixes no amount.
void ShareOfSon(CaseRecord& c, CaseScreen& screen);

}  // namespace qismora
