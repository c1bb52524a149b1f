#pragma once

#include "case/CaseRecord.h"
#include "case/CaseScreen.h"

namespace qismora {

/// The uterine sister: one sixth alone, or her heads' part of the one third that uterine brothers and
/// sisters share by heads (Quran 4:12).
void ShareOfUterineSister(CaseRecord& c, CaseScreen& screen);

/// The uterine brother, as the sister.
void ShareOfUterineBrother(CaseRecord& c, CaseScreen& screen);

}  // namespace qismora
