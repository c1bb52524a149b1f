#pragma once

#include "faraid/Allotment.h"

namespace faraid {

/// The fixed shares (furud) of those who inherit, including al-Umariyyatan and al-Mushtaraka, but not those
/// of a grandfather who shares with siblings, nor of these siblings. The table in the source file names the
/// source of each row.
Allotments FixedShares(const Heirs& heirs);

}  // namespace faraid
