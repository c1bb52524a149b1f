#pragma once

#include <vector>

#include "division/FamilyTree.h"

namespace qismora {

/// Draws a line from each heir who yields to the heir who excludes him or her, between the nodes. Lines to
/// the same heir join on their way. They cross the lines of the family as little as can be, and never run
/// along them. Beside nodes they keep half a gap away, between rows they run in the lanes of the tree, which
/// has the sizes given.
void DrawExclusionLines(FamilyTree& tree, const TreeMetrics& metrics);

}  // namespace qismora
