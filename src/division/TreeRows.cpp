#include "division/TreeRows.h"

#include <algorithm>

namespace qismora {

void TreeRows::AddDeceased() {
  Add({TreeNode::Role::Deceased, faraid::Kind::Remainder, -m_.DeceasedWidth / 2, 0, m_.DeceasedWidth,
       m_.DeceasedHeight},
      DeceasedRow, 0);
}

void TreeRows::AddHeir(faraid::Kind heir, int centre, int row, int middle) {
  Add(HeirNode(heir, centre), row, middle);
}

void TreeRows::AddLink(faraid::Kind heir, int centre, int row, int middle) {
  Add({TreeNode::Role::Link, heir, centre - m_.Link / 2, 0, m_.Link, m_.Link}, row, middle);
}

void TreeRows::Add(TreeNode node, int row, int middle) {
  node.Y = middle - node.Height / 2;
  placed_.push_back({node, row});
  int& half = halfHeights_[static_cast<std::size_t>(row)];
  half = std::max(half, std::max(-node.Y, node.Y + node.Height));
}

void TreeRows::AddHeirBesideRows(faraid::Kind heir, int centre, int row, int middle) {
  TreeNode node = HeirNode(heir, centre);
  node.Y = middle - node.Height / 2;
  placed_.push_back({node, row});
  lowest_ = std::max(lowest_, node.Y + node.Height);
}

void TreeRows::MoveRight(std::pair<std::size_t, std::size_t> since, int by) {
  for (std::size_t i = since.first; i < placed_.size(); ++i) placed_[i].Node.X += by;
  for (std::size_t i = since.second; i < lines_.size(); ++i) {
    for (RowPoint& point : lines_[i]) point.X += by;
  }
}

std::pair<int, int> TreeRows::Sides() const {
  int left = 0;
  int right = 0;
  for (const Placed& placed : placed_) {
    left = std::min(left, placed.Node.X);
    right = std::max(right, placed.Node.X + placed.Node.Width);
  }
  for (const auto& line : lines_) {
    for (const RowPoint& point : line) {
      left = std::min(left, point.X);
      right = std::max(right, point.X);
    }
  }
  return {left, right};
}

int TreeRows::SideBelow(int side) const {
  int out = 0;
  for (const Placed& placed : placed_) {
    const int edge = side < 0 ? placed.Node.X : placed.Node.X + placed.Node.Width;
    if (placed.Row > DeceasedRow) out = std::max(out, side * edge);
  }
  return side * out;
}

int TreeRows::Height() const {
  int y = 0;
  int lowest = 0;
  for (int row = 0; row < TreeRowCount; ++row) {
    const int half = halfHeights_[static_cast<std::size_t>(row)];
    if (row == DeceasedRow) lowest = y + half + lowest_;
    if (half > 0) y += 2 * half + m_.RowGap;
  }
  return std::max(y - m_.RowGap, lowest);
}

void TreeRows::Place(FamilyTree& tree, std::pair<int, int> sides, int margin, bool hangs) {
  const auto [left, right] = sides;
  const bool parents = IsUsed(DeceasedRow - 1);
  std::array<int, TreeRowCount> middles{};
  int y = hangs && !parents ? m_.RowGap / 2 : 0;
  for (int row = 0; row < TreeRowCount; ++row) {
    const auto r = static_cast<std::size_t>(row);
    if (!IsUsed(row)) continue;
    middles[r] = y + halfHeights_[r];
    if (y > 0) tree.Lanes.push_back(y - m_.RowGap / 2);
    y += 2 * halfHeights_[r] + m_.RowGap;
  }
  tree.Width = right - left;
  const int bottom = std::max(y - m_.RowGap, middles[DeceasedRow] + lowest_);
  tree.Height = bottom + margin;
  tree.Lanes.push_back(bottom + margin / 2);
  for (Placed& placed : placed_) {
    placed.Node.X -= left;
    placed.Node.Y += middles[static_cast<std::size_t>(placed.Row)];
    tree.Nodes.push_back(placed.Node);
  }
  for (const auto& points : lines_) {
    TreeLine line;
    for (const RowPoint& point : points) line.push_back({point.X - left, HeightOf(point, middles)});
    tree.Lines.push_back(std::move(line));
  }
}

int TreeRows::HeightOf(const RowPoint& point, const std::array<int, TreeRowCount>& middles) const {
  const auto row = static_cast<std::size_t>(point.Row);
  const int top = middles[row] - halfHeights_[row];
  switch (point.Where) {
    case RowPoint::Level::Middle:
      return middles[row] + point.Offset;
    case RowPoint::Level::Above:
      return top - m_.RowGap / 4;
    case RowPoint::Level::FarAbove:
      return top - 3 * m_.RowGap / 4;
  }
  return 0;
}

}  // namespace qismora
