#pragma once

#include "faraid/Allotment.h"

namespace faraid {

/// What a grandfather and the full and consanguine siblings beside him take, where he shares with them
/// (GrandfatherShares). The others have the fixed shares of all other heirs. Siblings who take nothing are
/// given a share of nothing. Rule of Zayd ibn Thabit in the Maliki, Shafi'i and Hanbali schools.
Allotments ShareWithGrandfather(const Heirs& heirs, const Allotments& others);

/// The reason of one kind of these siblings.
Reason WhyBesideGrandfather(const Heirs& heirs, const Allotment& ofSiblings, Kind kind);

}  // namespace faraid
