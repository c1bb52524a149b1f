#pragma once

#include "case/CaseRecord.h"
#include "case/CaseScreen.h"

namespace qismora {

/// The share of all true grandmothers together: one sixth, or nothing.
void ShareOfGrandMother(CaseRecord& c, CaseScreen& screen);

/// Names who makes up the group of grandmothers, counts the women, and copies GrandMotherShare into the
/// slot of one of them.
void SetGrandMotherGroup(CaseRecord& c);

}  // namespace qismora
