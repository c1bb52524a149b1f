#pragma once

#include "faraid/Allotment.h"

namespace faraid {

/// The fixed shares (furud) of those who inherit, al-Umariyyatan and al-Mushtaraka among them. A grandfather
/// who shares with siblings and these siblings are left out.
Allotments FixedShares(const Heirs& heirs);

}  // namespace faraid
