#pragma once

#include <span>
#include <vector>

#include "division/DivisionView.h"

namespace qismora {

/// How large the nodes are and how far apart, in pixels.
struct TreeMetrics {
  int NodeWidth = 150;
  int NodeHeight = 44;
  /// The height of an heir who receives nothing.
  int OtherHeight = 44;
  int DeceasedWidth = 110;
  int DeceasedHeight = 44;
  int Gap = 16;
  int RowGap = 34;
  /// The side of a link.
  int Link = 8;
};

struct TreePoint {
  int X = 0;
  int Y = 0;
};

/// A rectangle of the picture.
struct TreeNode {
  enum class Role {
    Deceased,
    /// A kind of heir who is alive, all heads in one node.
    Heir,
    /// A relative who is dead and through whom another one is related.
    Link,
  };
  Role What = Role::Heir;
  /// Of a link the ascendant who has died; the remainder for other links and for the deceased.
  faraid::Kind Heir = faraid::Kind::Remainder;
  int X = 0;
  int Y = 0;
  int Width = 0;
  int Height = 0;

  TreePoint Centre() const { return {X + Width / 2, Y + Height / 2}; }
};

/// A line between relatives: a chain of points.
using TreeLine = std::vector<TreePoint>;

/// An excluded heir, and the heir who excludes him or her, by their places among the nodes.
struct TreeExclusion {
  std::size_t From = 0;
  std::size_t To = 0;
  /// From the edge of the one node to the edge of the other.
  TreeLine Line;
  /// The beginning of it, up to where it joins another line to the same heir.
  TreeLine Alone;
};

/// The family as a picture from 0, 0 to its width and height: ascendants above the deceased, those of the
/// father on the left, descendants below. Full and consanguine brothers and sisters and class II stand on the
/// left, uterine ones and the spouse on the right. Each hangs from his or her own parents alone: full
/// brothers and sisters from the line of the deceased, consanguine ones from the father, uterine ones from
/// the mother.
struct FamilyTree {
  /// The deceased is the first; then in the order in which a reader goes through them, from the top left.
  std::vector<TreeNode> Nodes;
  std::vector<TreeLine> Lines;
  std::vector<TreeExclusion> Exclusions;
  int Width = 0;
  int Height = 0;
  /// The sizes that were chosen, by their place among those given.
  std::size_t Sizes = 0;
  /// The heights between the rows, at which the lines of excluded heirs can run.
  std::vector<int> Lanes;
};

/// Lays out all who are alive. No two nodes overlap, whatever the family. Of the given sizes, and of the ways
/// to place brothers, sisters and class II, it chooses those with which the tree is lowest without being
/// wider than the widest. If nothing is narrow enough, the tree is neither much wider nor much higher than it
/// must be. DrawExclusionLines adds the lines of the excluded heirs.
FamilyTree LayOutFamily(const DivisionView& view, std::span<const TreeMetrics> sizes, int widest);

}  // namespace qismora
