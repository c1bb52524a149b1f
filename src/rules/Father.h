#pragma once

#include "case/CaseRecord.h"
#include "case/CaseScreen.h"

namespace qismora {

/// The share of the ultimate father, who is the nearest living male ascendant: one sixth beside a male
/// descendant (Quran 4:11), one sixth and the residue beside daughters alone, the residue with no
/// descendant. The residue itself is divided by the residuary distribution.
void ShareOfFather(CaseRecord& c, CaseScreen& screen);

/// Names the ultimate father and copies FatherShare into his slot.
void SetUltimateFather(CaseRecord& c);

}  // namespace qismora
