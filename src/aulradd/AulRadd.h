#pragma once

#include "case/CaseRecord.h"
#include "case/CaseScreen.h"

namespace qismora {

/// The Aul/ Radd command: applies the doctrine that the last sufficiency test has found, rewrites the
/// fractions and shows the adjusted distribution. The amounts of the record do not change. No failure leaves
/// it. Aul rests on the agreement of the Companions under Umar, Radd on the doctrine of Ali and most
/// Companions, who exclude the spouse from it.
void RunAulRadd(CaseRecord& c, CaseScreen& screen);

}  // namespace qismora
