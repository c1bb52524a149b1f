#pragma once

#include <array>

#include "division/TreeRows.h"
#include "faraid/Kinds.h"

namespace qismora {

/// How brothers and sisters and class II stand beside the deceased.
struct Arrangement {
  /// Sisters stand beside their brothers, or below them.
  bool SistersBeside;
  /// The most rows of class II, which then stands to the left of brothers and sisters; 0 if it stands below
  /// them.
  int MostClassIIRows;
};

/// Adds those who stand beside the deceased, with their lines: on the left full and consanguine brothers and
/// sisters and class II, on the right uterine brothers and sisters and the spouse. Ascendants and descendants
/// are in the rows already; the centres are those of father and mother, by their places in Ascendants.
void AddSides(TreeRows& rows, const TreeMetrics& metrics, faraid::KindSet alive,
              const Arrangement& arrangement, const std::array<int, 2>& centresOfParents);

}  // namespace qismora
