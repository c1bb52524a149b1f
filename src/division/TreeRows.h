#pragma once

#include <array>
#include <utility>
#include <vector>

#include "division/FamilyTree.h"

namespace qismora {

inline constexpr int Generations = 3;
inline constexpr int TreeRowCount = 2 * Generations + 1;
inline constexpr int DeceasedRow = Generations;

/// A point of a line, before rows have a height: the middle of a row with an offset, or a height in the gap
/// above the row, a quarter of the gap from the row or a quarter from the next one.
struct TreeEnd {
  int X = 0;
  int Row = 0;
  enum class Edge { Middle, Above, FarAbove } Where = Edge::Middle;
  int Offset = 0;
};

/// The generations of a family tree as rows: nodes and lines are added in any order, and the rows then get
/// the height that they need.
class TreeRows {
 public:
  explicit TreeRows(const TreeMetrics& metrics) : m_(metrics) {}

  /// A node whose middle is so far below the middle of the row.
  void Add(TreeNode node, int middle, int row);
  /// The same beside the rows below, which do not become higher for it.
  void AddBesideRows(TreeNode node, int middle, int row);
  void AddLine(std::vector<TreeEnd> ends) { lines_.push_back(std::move(ends)); }

  /// How many nodes and lines there are.
  std::pair<std::size_t, std::size_t> Count() const { return {placed_.size(), lines_.size()}; }
  /// Moves what was added since then.
  void MoveRight(std::pair<std::size_t, std::size_t> since, int by);

  /// The left and right edges of nodes and lines, 0 included.
  std::pair<int, int> Sides() const;
  /// The left (-1) or right (1) edge of the nodes below the deceased, 0 included.
  int SideBelow(int side) const;
  int Height() const;

  /// Puts nodes and lines into the tree. What hangs above the deceased needs space though there are no
  /// parents.
  void Place(FamilyTree& tree, std::pair<int, int> sides, int margin, bool hangs);

 private:
  /// A node whose column is known, while rows have no height yet: the vertical place is counted from the
  /// middle of its row.
  struct Placed {
    TreeNode Node;
    int Row = 0;
  };

  bool IsUsed(int row) const { return halfHeights_[static_cast<std::size_t>(row)] > 0; }
  int HeightOf(const TreeEnd& end, const std::array<int, TreeRowCount>& middles) const;

  TreeMetrics m_;
  std::vector<Placed> placed_;
  std::vector<std::vector<TreeEnd>> lines_;
  std::array<int, TreeRowCount> halfHeights_{};
  /// What stands beside the rows below ends so far below the middle of the deceased.
  int lowest_ = 0;
};

}  // namespace qismora
