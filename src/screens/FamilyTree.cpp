#include "screens/FamilyTree.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

#include "screens/YieldLines.h"

namespace qismora {

namespace {

using faraid::Kind;
using faraid::KindSet;

constexpr int generations = 3;
constexpr int rowCount = 2 * generations + 1;
constexpr int deceasedRow = generations;

/// Where no arrangement is narrow enough, so much height is worth one more of width.
constexpr int costOfWidth = 3;

/// Of class II, the further ones stand beside the descendants.
constexpr int mostRowsBeside = 6;

/// How brothers and sisters and class II stand beside the deceased.
struct Arrangement {
  /// Sisters beside their brothers, or below them.
  bool SistersBeside;
  int MostClassIIRows;
  /// Below the deceased, beside the line of the descendants.
  bool SpouseBelow;
};

// From the lowest to the narrowest.
constexpr Arrangement arrangements[] = {
    {true, 3, false},  {true, 4, false}, {true, 6, false},
    {false, 6, false}, {false, 6, true}, {false, 12, true},
};

/// An ascendant, and the places in the table of his or her own parents.
struct Ascendant {
  Kind Heir;
  int Generation;
  std::array<int, 2> Parents;
};

constexpr int nobody = -1;

// The father's side stands on the left.
constexpr Ascendant ascendants[] = {
    {Kind::Father, 1, {2, 3}},
    {Kind::Mother, 1, {4, nobody}},
    {Kind::Grandfather, 2, {5, 6}},
    {Kind::FathersMother, 2, {7, nobody}},
    {Kind::MothersMother, 2, {8, nobody}},
    {Kind::GreatGrandfather, 3, {nobody, nobody}},
    {Kind::GrandfathersMother, 3, {nobody, nobody}},
    {Kind::FathersMothersMother, 3, {nobody, nobody}},
    {Kind::MothersMothersMother, 3, {nobody, nobody}},
};

struct Descent {
  Kind Male;
  Kind Female;
};

constexpr Descent descents[generations] = {
    {Kind::Sons, Kind::Daughters},
    {Kind::SonsSons, Kind::SonsDaughters},
    {Kind::SonsSonsSons, Kind::SonsSonsDaughters},
};

constexpr Descent siblings[] = {
    {Kind::FullBrothers, Kind::FullSisters},
    {Kind::ConsanguineBrothers, Kind::ConsanguineSisters},
    {Kind::UterineBrothers, Kind::UterineSisters},
};

/// A node whose column is known, while rows have no height yet: the vertical place is counted from the middle
/// of its row.
struct Placed {
  TreeNode Node;
  int Row = 0;
};

/// A point of a line, before rows have a height: the middle of a row with an offset, or a height in the gap
/// above the row, a quarter of the gap from the row or a quarter from the next one.
struct End {
  int X = 0;
  int Row = 0;
  enum class Edge { Middle, Above, FarAbove } Where = Edge::Middle;
  int Offset = 0;
};

class Layout {
 public:
  Layout(const DivisionView& view, const TreeMetrics& metrics, const Arrangement& arrangement)
      : view_(&view), m_(metrics), arrangement_(arrangement) {
    for (const DivisionLine& line : view.Takers) {
      if (line.Heir() != Kind::Remainder) taking_ = taking_ | line.Heir();
    }
    alive_ = taking_;
    for (const DivisionLine& line : view.Others) alive_ = alive_ | line.Heir();
    Add({TreeNode::Role::Deceased, Kind::Remainder, -m_.DeceasedWidth / 2, 0, m_.DeceasedWidth,
         m_.DeceasedHeight},
        0, deceasedRow);
    AddAscendants();
    AddDescendants();
    AddSiblings();
    AddSpouse();
    AddClassII();
  }

  int Width() const {
    const auto [left, right] = Sides();
    return right - left;
  }
  /// Whether it needs less space where there is so much across.
  bool IsBetter(const Layout& other, int widest) const {
    const int excess = std::max(0, Width() - widest);
    const int othersExcess = std::max(0, other.Width() - widest);
    if ((excess == 0) != (othersExcess == 0)) return excess == 0;
    return Height() + costOfWidth * excess < other.Height() + costOfWidth * othersExcess;
  }
  int Height() const {
    int y = 0;
    int lowest = 0;
    for (int row = 0; row < rowCount; ++row) {
      const int half = halfHeights_[static_cast<std::size_t>(row)];
      if (row == deceasedRow) lowest = y + half + lowest_;
      if (half > 0) y += 2 * half + m_.RowGap;
    }
    return std::max(y - m_.RowGap, lowest);
  }

  FamilyTree Finish() {
    FamilyTree tree;
    PlaceRows(tree);
    // The deceased stays the first.
    std::ranges::sort(tree.Nodes.begin() + 1, tree.Nodes.end(), [](const TreeNode& a, const TreeNode& b) {
      return std::pair(a.Y, a.X) < std::pair(b.Y, b.X);
    });
    AddYields(tree);
    DrawYieldLines(tree, m_.Gap, m_.RowGap, lanes_);
    return tree;
  }

 private:
  int Step() const { return m_.NodeWidth + m_.Gap; }
  int HeightOf(Kind heir) const { return taking_.Has(heir) ? m_.NodeHeight : m_.OtherHeight; }
  int GridStep(KindSet heirs) const {
    return (taking_.HasAny(heirs) ? m_.NodeHeight : m_.OtherHeight) + m_.Gap;
  }

  void Add(TreeNode node, int middle, int row) {
    node.Y = middle - node.Height / 2;
    placed_.push_back({node, row});
    const bool isBesideDescendants = middle > mostRowsBeside * GridStep(faraid::ClassII) / 2;
    if (isBesideDescendants) {
      lowest_ = std::max(lowest_, node.Y + node.Height);
      return;
    }
    int& half = halfHeights_[static_cast<std::size_t>(row)];
    half = std::max(half, std::max(-node.Y, node.Y + node.Height));
  }
  void AddHeir(Kind heir, int centre, int row, int middle = 0) {
    Add({TreeNode::Role::Heir, heir, centre - m_.NodeWidth / 2, 0, m_.NodeWidth, HeightOf(heir)}, middle,
        row);
  }
  void AddLink(int centre, int row) {
    Add({TreeNode::Role::Link, Kind::Remainder, centre - m_.Link / 2, 0, m_.Link, m_.Link}, 0, row);
  }
  void AddLine(std::vector<End> ends) { lines_.push_back(std::move(ends)); }

  bool IsNeeded(int ascendant) const {
    if (ascendant == nobody) return false;
    const Ascendant& person = ascendants[ascendant];
    return alive_.Has(person.Heir) || std::ranges::any_of(person.Parents, [&](int p) { return IsNeeded(p); });
  }

  // The parents are placed like the children of an ordinary tree, upwards.
  struct Block {
    int Width = 0;
    int Centre = 0;
  };
  Block PlaceParents(const std::array<int, 2>& parents, int left, int row, int leastWidth) {
    std::vector<int> centres;
    int width = 0;
    std::vector<int> needed;
    for (const int parent : parents) {
      if (IsNeeded(parent)) needed.push_back(parent);
    }
    if (needed.empty()) return {leastWidth, left + leastWidth / 2};
    // Where the child is wider than all above it, these stand over its middle.
    const int own = WidthAbove(needed);
    int x = left + std::max(0, (leastWidth - own) / 2);
    for (const int parent : needed) {
      const Ascendant& person = ascendants[parent];
      const int parentRow = deceasedRow - person.Generation;
      const bool alive = alive_.Has(person.Heir);
      const Block block = PlaceParents(person.Parents, x, parentRow, alive ? m_.NodeWidth : m_.Link);
      if (alive) {
        AddHeir(person.Heir, block.Centre, parentRow);
      } else {
        AddLink(block.Centre, parentRow);
      }
      centres.push_back(block.Centre);
      x += block.Width + m_.Gap;
      width += block.Width + (width > 0 ? m_.Gap : 0);
    }
    const int centre = (centres.front() + centres.back()) / 2;
    for (const int parent : centres) {
      AddLine({{parent, row - 1},
               {parent, row, End::Edge::FarAbove},
               {centre, row, End::Edge::FarAbove},
               {centre, row}});
    }
    return {std::max(width, leastWidth), centre};
  }
  int WidthAbove(const std::vector<int>& people) const {
    int width = 0;
    for (const int i : people) {
      const Ascendant& person = ascendants[i];
      std::vector<int> above;
      for (const int parent : person.Parents) {
        if (IsNeeded(parent)) above.push_back(parent);
      }
      width += std::max(WidthAbove(above), alive_.Has(person.Heir) ? m_.NodeWidth : m_.Link) +
               (width > 0 ? m_.Gap : 0);
    }
    return width;
  }

  // Laid out from 0 and then moved, so that the deceased stands between the parents.
  void AddAscendants() {
    const std::size_t firstNode = placed_.size();
    const std::size_t firstLine = lines_.size();
    const Block block = PlaceParents({0, 1}, 0, deceasedRow, 0);
    for (std::size_t i = firstNode; i < placed_.size(); ++i) placed_[i].Node.X -= block.Centre;
    for (std::size_t i = firstLine; i < lines_.size(); ++i) {
      for (End& end : lines_[i]) end.X -= block.Centre;
    }
  }

  // The trunk runs down the middle, through the child who has died.
  void AddDescendants() {
    int last = 0;
    for (int g = 0; g < generations; ++g) {
      if (alive_.HasAny(descents[g].Male | descents[g].Female)) last = g + 1;
    }
    for (int g = 0; g < last; ++g) {
      const int row = deceasedRow + 1 + g;
      const bool goesOn = g + 1 < last;
      const bool male = alive_.Has(descents[g].Male);
      const bool female = alive_.Has(descents[g].Female);
      const bool alone = !goesOn && male != female;
      const int side = alone ? 0 : (Step() + (goesOn ? m_.Link + m_.Gap : 0)) / 2;
      if (goesOn) {
        AddLink(0, row);
        AddLine({{0, row - 1}, {0, row}});
      }
      for (const auto& [heir, centre] :
           {std::pair(descents[g].Male, -side), std::pair(descents[g].Female, side)}) {
        if (!alive_.Has(heir)) continue;
        AddHeir(heir, centre, row);
        AddLine({{0, row - 1}, {0, row, End::Edge::Above}, {centre, row, End::Edge::Above}, {centre, row}});
      }
    }
  }

  // One row for each kind of kinship, or for each kind of heir; the whole hangs from a line that leaves above
  // the deceased.
  void AddSiblings() {
    const int edge = -m_.DeceasedWidth / 2 - m_.Gap;
    const int spine = edge - m_.Gap / 2;
    const int nearest = spine - m_.Gap - m_.NodeWidth / 2;
    std::vector<std::vector<Kind>> rows;
    for (const Descent& pair : siblings) {
      std::vector<Kind> row;
      for (const Kind heir : {pair.Female, pair.Male}) {
        if (!alive_.Has(heir)) continue;
        if (!row.empty() && !arrangement_.SistersBeside) rows.push_back(std::exchange(row, {}));
        row.push_back(heir);
      }
      if (!row.empty()) rows.push_back(row);
    }
    const int count = static_cast<int>(rows.size());
    std::vector<std::pair<int, int>> hanging;
    for (int i = 0; i < count; ++i) {
      const int middle = MiddleOf(i, count, GridStep(faraid::Siblings));
      int x = nearest;
      for (const Kind heir : rows[static_cast<std::size_t>(i)]) {
        AddHeir(heir, x, deceasedRow, middle);
        x -= Step();
      }
      hanging.emplace_back(x + Step(), middle);
    }
    Hang(spine, hanging);
  }

  static int MiddleOf(int line, int count, int step) { return (2 * line - count + 1) * step / 2; }

  /// Each row hangs from a line that goes down beside them; a row is its end and its middle.
  void Hang(int spine, const std::vector<std::pair<int, int>>& rows) {
    if (rows.empty()) return;
    AddLine({{0, deceasedRow},
             {0, deceasedRow, End::Edge::Above},
             {spine, deceasedRow, End::Edge::Above},
             {spine, deceasedRow, End::Edge::Middle, rows.back().second}});
    for (const auto& [end, middle] : rows) {
      AddLine(
          {{spine, deceasedRow, End::Edge::Middle, middle}, {end, deceasedRow, End::Edge::Middle, middle}});
    }
  }

  void AddSpouse() {
    const int edge = m_.DeceasedWidth / 2 + m_.Gap;
    right_ = edge;
    const KindSet spouses = alive_ & faraid::Spouses;
    for (const Kind spouse : spouses) {
      const bool below = arrangement_.SpouseBelow;
      const int left = below ? m_.Gap : edge + m_.Gap;
      const int middle = below ? (m_.DeceasedHeight + HeightOf(spouse)) / 2 + m_.Gap : 0;
      AddHeir(spouse, left + m_.NodeWidth / 2, deceasedRow, middle);
      right_ = std::max(right_, left + m_.NodeWidth + m_.Gap);
      if (below) {
        AddLine({{0, deceasedRow},
                 {edge, deceasedRow},
                 {edge, deceasedRow, End::Edge::Middle, middle},
                 {left + m_.NodeWidth / 2, deceasedRow, End::Edge::Middle, middle}});
      } else {
        AddLine({{0, deceasedRow}, {left + m_.NodeWidth / 2, deceasedRow}});
      }
    }
  }

  void AddClassII() {
    std::vector<Kind> heirs;
    const KindSet classII = alive_ & faraid::ClassII;
    for (const Kind heir : classII) heirs.push_back(heir);
    if (heirs.empty()) return;
    const int count = static_cast<int>(heirs.size());
    const int columns = (count + arrangement_.MostClassIIRows - 1) / arrangement_.MostClassIIRows;
    const int rows = (count + columns - 1) / columns;
    if (rows > mostRowsBeside) {
      for (const Placed& placed : placed_) {
        if (placed.Row > deceasedRow) right_ = std::max(right_, placed.Node.X + placed.Node.Width);
      }
    }
    const int spine = right_ + m_.Gap / 2;
    const int nearest = spine + m_.Gap + m_.NodeWidth / 2;
    std::vector<std::pair<int, int>> hanging;
    for (int i = 0; i < count; ++i) {
      const int middle = MiddleOf(i / columns, std::min(rows, mostRowsBeside), GridStep(faraid::ClassII));
      const int x = nearest + i % columns * Step();
      AddHeir(heirs[static_cast<std::size_t>(i)], x, deceasedRow, middle);
      if (i % columns == columns - 1 || i == count - 1) hanging.emplace_back(x, middle);
    }
    Hang(spine, hanging);
  }

  bool IsUsed(int row) const { return halfHeights_[static_cast<std::size_t>(row)] > 0; }

  bool Excludes() const {
    return std::ranges::any_of(view_->Others, [](const DivisionLine& line) { return Yields(line); });
  }
  static bool Yields(const DivisionLine& line) {
    return line.Law.As == faraid::Standing::Excluded && line.Law.Excluder != Kind::Remainder;
  }

  /// The lines of those who yield run around the outermost nodes too.
  int Margin() const { return Excludes() ? m_.Gap : 0; }

  std::pair<int, int> Sides() const {
    int left = 0;
    int right = arrangement_.SpouseBelow ? m_.DeceasedWidth / 2 + m_.Gap : 0;
    for (const Placed& placed : placed_) {
      left = std::min(left, placed.Node.X);
      right = std::max(right, placed.Node.X + placed.Node.Width);
    }
    return {left - Margin(), right + Margin()};
  }

  void PlaceRows(FamilyTree& tree) {
    const auto [left, right] = Sides();
    // What hangs from the line above the deceased needs its space though there are no parents.
    const bool hangs = alive_.HasAny(faraid::Siblings | faraid::ClassII);
    const bool parents = IsUsed(deceasedRow - 1);
    std::array<int, rowCount> middles{};
    int y = hangs && !parents ? m_.RowGap / 2 : 0;
    for (int row = 0; row < rowCount; ++row) {
      const auto r = static_cast<std::size_t>(row);
      if (!IsUsed(row)) continue;
      middles[r] = y + halfHeights_[r];
      if (y > 0) lanes_.push_back(y - m_.RowGap / 2);
      y += 2 * halfHeights_[r] + m_.RowGap;
    }
    tree.Width = right - left;
    const int bottom = std::max(y - m_.RowGap, middles[deceasedRow] + lowest_);
    tree.Height = bottom + Margin();
    lanes_.push_back(bottom + Margin() / 2);
    for (Placed& placed : placed_) {
      placed.Node.X -= left;
      placed.Node.Y += middles[static_cast<std::size_t>(placed.Row)];
      tree.Nodes.push_back(placed.Node);
    }
    for (const auto& ends : lines_) {
      TreeLine line;
      for (const End& end : ends) line.push_back({end.X - left, Height(end, middles)});
      tree.Lines.push_back(std::move(line));
    }
  }

  int Height(const End& end, const std::array<int, rowCount>& middles) const {
    const auto row = static_cast<std::size_t>(end.Row);
    const int top = middles[row] - halfHeights_[row];
    switch (end.Where) {
      case End::Edge::Middle:
        return middles[row] + end.Offset;
      case End::Edge::Above:
        return top - m_.RowGap / 4;
      case End::Edge::FarAbove:
        return top - 3 * m_.RowGap / 4;
    }
    return 0;
  }

  void AddYields(FamilyTree& tree) const {
    const auto find = [&](Kind heir) {
      return static_cast<std::size_t>(std::ranges::find(tree.Nodes, heir, &TreeNode::Heir) -
                                      tree.Nodes.begin());
    };
    for (const DivisionLine& line : view_->Others) {
      if (Yields(line)) tree.Yields.push_back({find(line.Heir()), find(line.Law.Excluder), {}, {}});
    }
  }

  const DivisionView* view_;
  TreeMetrics m_;
  Arrangement arrangement_;
  KindSet taking_;
  KindSet alive_;
  std::vector<Placed> placed_;
  std::vector<std::vector<End>> lines_;
  std::array<int, rowCount> halfHeights_{};
  int right_ = 0;
  /// What stands beside the descendants ends so far below the middle of the deceased.
  int lowest_ = 0;
  /// The heights between the rows at which the lines of those who yield may run.
  std::vector<int> lanes_;
};

}  // namespace

FamilyTree LayOutFamily(const DivisionView& view, std::span<const TreeMetrics> sizes, int widest) {
  std::optional<Layout> best;
  std::size_t chosen = 0;
  for (std::size_t i = 0; i < sizes.size(); ++i) {
    for (const Arrangement& arrangement : arrangements) {
      Layout layout(view, sizes[i], arrangement);
      const bool isBetter = !best || layout.IsBetter(*best, widest);
      if (!isBetter) continue;
      best.emplace(std::move(layout));
      chosen = i;
    }
  }
  FamilyTree tree = best ? best->Finish() : FamilyTree();
  tree.Sizes = chosen;
  return tree;
}

}  // namespace qismora
