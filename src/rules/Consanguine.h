#pragma once

#include "case/CaseRecord.h"
#include "case/CaseScreen.h"

namespace qismora {

/// The consanguine sister: as the full sister, with the full brothers and sisters before her; one sixth
/// beside exactly one full sister.
void ShareOfConsSister(CaseRecord& c, CaseScreen& screen);

/// The consanguine brother: excluded, or a residuary.
void ShareOfConsBrother(CaseRecord& c, CaseScreen& screen);

}  // namespace qismora
