#pragma once

#include <vector>

#include "division/FamilyTree.h"

namespace qismora {

/// Draws a line from each excluded heir to the heir who excludes him or her, between the nodes. Lines to the
/// same heir join on their way. They cross the lines of the family as little as possible, and avoid running
/// along them. Beside nodes they keep half a gap away; between rows they run in the lanes of the tree. Takes
/// the sizes with which the tree was laid out.
void DrawExclusionLines(FamilyTree& tree, const TreeMetrics& metrics);

}  // namespace qismora
