#pragma once

#include "case/CaseRecord.h"
#include "case/CaseScreen.h"

namespace qismora {

/// The mother's share: one sixth beside a descendant or two brothers and sisters of any kind, else one
/// third; with a spouse and the father alive, one third of what the spouse leaves (Quran 4:11).
/// The spouse's amount is rounded to a Long there; beyond its range it is the overflow failure.
void ShareOfMother(CaseRecord& c, CaseScreen& screen);

}  // namespace qismora
