#pragma once

#include "faraid/Allotment.h"

namespace faraid {

/// The shares of a grandfather and of the full and consanguine siblings beside him, if he shares with them
/// (GrandfatherShares). The other allotments are the fixed shares of all other heirs. Siblings who take
/// nothing have an allotment of 0. Rule of Zayd ibn Thabit in the Maliki, Shafi'i and Hanbali schools.
Allotments ShareWithGrandfather(const Heirs& heirs, const Allotments& others);

/// The reason of one kind of these siblings.
Reason WhyBesideGrandfather(const Heirs& heirs, const Allotment& ofSiblings, Kind kind);

}  // namespace faraid
