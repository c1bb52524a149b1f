#pragma once

#include "case/CaseRecord.h"
#include "case/CaseScreen.h"

namespace qismora {

/// The share of all the wives together: one fourth, or one eighth beside any descendant (Quran 4:12; that a
/// son's descendant counts like a child is consensus).
void ShareOfWife(CaseRecord& c, CaseScreen& screen);

/// The husband's share: one half, or one fourth beside any descendant, on the same sources. For a male
/// deceased only the heading is set.
void ShareOfHusband(CaseRecord& c, CaseScreen& screen);

}  // namespace qismora
