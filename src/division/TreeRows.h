#pragma once

#include <array>
#include <utility>
#include <vector>

#include "division/FamilyTree.h"

namespace qismora {

inline constexpr int Generations = 3;
inline constexpr int TreeRowCount = 2 * Generations + 1;
inline constexpr int DeceasedRow = Generations;

/// A point of a line, before rows have a height: at an offset below the middle of a row, or in the gap above
/// it, a quarter of the gap from the row (Above) or from the row above (FarAbove).
struct RowPoint {
  int X = 0;
  int Row = 0;
  enum class Level { Middle, Above, FarAbove } Where = Level::Middle;
  int Offset = 0;
};

/// The generations of a family tree as rows: nodes and lines are added in any order, and the rows then get
/// the height that they need.
class TreeRows {
 public:
  /// Takes the heirs who take something; the others may have nodes of another height.
  TreeRows(const TreeMetrics& metrics, faraid::KindSet takers) : m_(metrics), takers_(takers) {}

  // A node is given by its centre: the column, the row, and how far it is below the middle of the row.

  /// Adds the deceased, whose column is 0.
  void AddDeceased();
  void AddHeir(faraid::Kind heir, int centre, int row, int middle = 0);
  /// The same beside the rows below, which do not become higher.
  void AddHeirBesideRows(faraid::Kind heir, int centre, int row, int middle);
  void AddLink(faraid::Kind heir, int centre, int row, int middle = 0);
  void AddLine(std::vector<RowPoint> points) { lines_.push_back(std::move(points)); }

  int HeightOfHeir(faraid::Kind heir) const { return takers_.Has(heir) ? m_.NodeHeight : m_.OtherHeight; }

  /// How many nodes and lines there are.
  std::pair<std::size_t, std::size_t> Count() const { return {placed_.size(), lines_.size()}; }
  /// Moves what was added since then.
  void MoveRight(std::pair<std::size_t, std::size_t> since, int by);

  /// The left and right edges of nodes and lines, 0 included.
  std::pair<int, int> Sides() const;
  /// The left (-1) or right (1) edge of the nodes below the deceased, 0 included.
  int SideBelow(int side) const;
  int Height() const;

  /// Puts nodes and lines into the tree, between these sides and with this margin below. Lines that hang
  /// above the deceased need space even without parents.
  void Place(FamilyTree& tree, std::pair<int, int> sides, int margin, bool hangs);

 private:
  /// A node whose column is known, while rows have no height yet: the vertical place is counted from the
  /// middle of its row.
  struct Placed {
    TreeNode Node;
    int Row = 0;
  };

  TreeNode HeirNode(faraid::Kind heir, int centre) const {
    return {TreeNode::Role::Heir, heir, centre - m_.NodeWidth / 2, 0, m_.NodeWidth, HeightOfHeir(heir)};
  }
  void Add(TreeNode node, int row, int middle);
  bool IsUsed(int row) const { return halfHeights_[static_cast<std::size_t>(row)] > 0; }
  int HeightOf(const RowPoint& point, const std::array<int, TreeRowCount>& middles) const;

  TreeMetrics m_;
  faraid::KindSet takers_;
  std::vector<Placed> placed_;
  std::vector<std::vector<RowPoint>> lines_;
  std::array<int, TreeRowCount> halfHeights_{};
  /// What stands beside the rows below ends so far below the middle of the deceased.
  int lowest_ = 0;
};

}  // namespace qismora
