#pragma once

#include "faraid/Allotment.h"

namespace faraid {

/// Gives what the fixed shares leave, which may be nothing, to the first class of residuaries (asaba) among
/// the heirs. Without a residuary the allotment has no takers. Of the sharers, who have their fixed shares
/// already, only a father or grandfather can also be a residuary. The table in the source file names the
/// source of each class.
Allotment Residuaries(const Heirs& heirs, KindSet sharers, const Fraction& residue);

/// The reason of one of the kinds that take the residue.
Reason WhyResiduary(const Heirs& heirs, const Allotment& residue, Kind kind);

}  // namespace faraid
