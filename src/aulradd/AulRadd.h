#pragma once

#include "case/CaseRecord.h"
#include "case/CaseScreen.h"

namespace qismora {

/// The Aul/ Radd command: works on the state that the last sufficiency test left, rewrites the fractions and
/// shows the adjusted distribution. No amount field changes. No failure leaves it. Aul rests on the agreement
/// of the Companions under Umar; Radd on the doctrine of Ali and most Companions, who leave the spouse out.
void RunAulRadd(CaseRecord& c, CaseScreen& screen);

}  // namespace qismora
