#pragma once

#include "case/CaseRecord.h"
#include "case/CaseScreen.h"

namespace qismora {

/// The full brother: excluded, or a residuary; he never has a fixed share (Quran 4:176).
void ShareOfFullBrother(CaseRecord& c, CaseScreen& screen);

/// The full sister: excluded, a residuary, or with neither brother nor daughters a sharer of one half or
/// two thirds (Quran 4:176).
void ShareOfFullSister(CaseRecord& c, CaseScreen& screen);

}  // namespace qismora
