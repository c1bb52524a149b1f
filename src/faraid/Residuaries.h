#pragma once

#include "faraid/Allotment.h"

namespace faraid {

/// Gives the first class of residuaries (asaba) among the heirs what the fixed shares leave, which may be
/// nothing. Nobody takes where there is none. The sharers have their fixed shares already: of these only a
/// father or grandfather is residuary as well.
Allotment Residuaries(const Heirs& heirs, KindSet sharers, const Fraction& residue);

/// The reason of one kind that takes the residue.
Reason WhyResiduary(const Heirs& heirs, const Allotment& residue, Kind kind);

}  // namespace faraid
