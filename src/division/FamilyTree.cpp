#include "division/FamilyTree.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

#include "division/Kinship.h"
#include "division/TreeRows.h"
#include "division/YieldLines.h"

namespace qismora {

namespace {

using faraid::Kind;
using faraid::KindSet;

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

class Layout {
 public:
  Layout(const DivisionView& view, const TreeMetrics& metrics, const Arrangement& arrangement)
      : view_(&view), m_(metrics), arrangement_(arrangement), rows_(metrics) {
    for (const DivisionLine& line : view.Takers) {
      if (line.Heir() != Kind::Remainder) taking_ = taking_ | line.Heir();
    }
    alive_ = taking_;
    for (const DivisionLine& line : view.Others) alive_ = alive_ | line.Heir();
    Add({TreeNode::Role::Deceased, Kind::Remainder, -m_.DeceasedWidth / 2, 0, m_.DeceasedWidth,
         m_.DeceasedHeight},
        0, DeceasedRow);
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
  int Height() const { return rows_.Height(); }

  FamilyTree Finish() {
    FamilyTree tree;
    rows_.Place(tree, Sides(), Margin(), alive_.HasAny(faraid::Siblings | faraid::ClassII));
    // The deceased stays the first.
    std::ranges::sort(tree.Nodes.begin() + 1, tree.Nodes.end(), [](const TreeNode& a, const TreeNode& b) {
      return std::pair(a.Y, a.X) < std::pair(b.Y, b.X);
    });
    AddYields(tree);
    DrawYieldLines(tree, m_.Gap, m_.RowGap, rows_.Lanes());
    return tree;
  }

 private:
  int Step() const { return m_.NodeWidth + m_.Gap; }
  int HeightOf(Kind heir) const { return taking_.Has(heir) ? m_.NodeHeight : m_.OtherHeight; }
  int GridStep(KindSet heirs) const {
    return (taking_.HasAny(heirs) ? m_.NodeHeight : m_.OtherHeight) + m_.Gap;
  }

  void Add(const TreeNode& node, int middle, int row) {
    const bool isBesideDescendants = middle > mostRowsBeside * GridStep(faraid::ClassII) / 2;
    if (isBesideDescendants) {
      rows_.AddBesideRows(node, middle, row);
    } else {
      rows_.Add(node, middle, row);
    }
  }
  void AddHeir(Kind heir, int centre, int row, int middle = 0) {
    Add({TreeNode::Role::Heir, heir, centre - m_.NodeWidth / 2, 0, m_.NodeWidth, HeightOf(heir)}, middle,
        row);
  }
  void AddLink(int centre, int row) {
    Add({TreeNode::Role::Link, Kind::Remainder, centre - m_.Link / 2, 0, m_.Link, m_.Link}, 0, row);
  }
  void AddLine(std::vector<TreeEnd> ends) { rows_.AddLine(std::move(ends)); }

  bool IsNeeded(int ascendant) const {
    if (ascendant == Nobody) return false;
    const Ascendant& person = Ascendants[ascendant];
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
      const Ascendant& person = Ascendants[parent];
      const int parentRow = DeceasedRow - person.Generation;
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
               {parent, row, TreeEnd::Edge::FarAbove},
               {centre, row, TreeEnd::Edge::FarAbove},
               {centre, row}});
    }
    return {std::max(width, leastWidth), centre};
  }
  int WidthAbove(const std::vector<int>& people) const {
    int width = 0;
    for (const int i : people) {
      const Ascendant& person = Ascendants[i];
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
    const auto before = rows_.Count();
    const Block block = PlaceParents({0, 1}, 0, DeceasedRow, 0);
    rows_.MoveRight(before, -block.Centre);
  }

  // The trunk runs down the middle, through the child who has died.
  void AddDescendants() {
    int last = 0;
    for (int g = 0; g < Generations; ++g) {
      if (alive_.HasAny(Descents[g].Male | Descents[g].Female)) last = g + 1;
    }
    for (int g = 0; g < last; ++g) {
      const int row = DeceasedRow + 1 + g;
      const bool goesOn = g + 1 < last;
      const bool male = alive_.Has(Descents[g].Male);
      const bool female = alive_.Has(Descents[g].Female);
      const bool alone = !goesOn && male != female;
      const int side = alone ? 0 : (Step() + (goesOn ? m_.Link + m_.Gap : 0)) / 2;
      if (goesOn) {
        AddLink(0, row);
        AddLine({{0, row - 1}, {0, row}});
      }
      for (const auto& [heir, centre] :
           {std::pair(Descents[g].Male, -side), std::pair(Descents[g].Female, side)}) {
        if (!alive_.Has(heir)) continue;
        AddHeir(heir, centre, row);
        AddLine({{0, row - 1},
                 {0, row, TreeEnd::Edge::Above},
                 {centre, row, TreeEnd::Edge::Above},
                 {centre, row}});
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
    for (const Descent& pair : SiblingKinds) {
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
        AddHeir(heir, x, DeceasedRow, middle);
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
    AddLine({{0, DeceasedRow},
             {0, DeceasedRow, TreeEnd::Edge::Above},
             {spine, DeceasedRow, TreeEnd::Edge::Above},
             {spine, DeceasedRow, TreeEnd::Edge::Middle, rows.back().second}});
    for (const auto& [end, middle] : rows) {
      AddLine({{spine, DeceasedRow, TreeEnd::Edge::Middle, middle},
               {end, DeceasedRow, TreeEnd::Edge::Middle, middle}});
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
      AddHeir(spouse, left + m_.NodeWidth / 2, DeceasedRow, middle);
      right_ = std::max(right_, left + m_.NodeWidth + m_.Gap);
      if (below) {
        AddLine({{0, DeceasedRow},
                 {edge, DeceasedRow},
                 {edge, DeceasedRow, TreeEnd::Edge::Middle, middle},
                 {left + m_.NodeWidth / 2, DeceasedRow, TreeEnd::Edge::Middle, middle}});
      } else {
        AddLine({{0, DeceasedRow}, {left + m_.NodeWidth / 2, DeceasedRow}});
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
    if (rows > mostRowsBeside) right_ = std::max(right_, rows_.RightBelow());
    const int spine = right_ + m_.Gap / 2;
    const int nearest = spine + m_.Gap + m_.NodeWidth / 2;
    std::vector<std::pair<int, int>> hanging;
    for (int i = 0; i < count; ++i) {
      const int middle = MiddleOf(i / columns, std::min(rows, mostRowsBeside), GridStep(faraid::ClassII));
      const int x = nearest + i % columns * Step();
      AddHeir(heirs[static_cast<std::size_t>(i)], x, DeceasedRow, middle);
      if (i % columns == columns - 1 || i == count - 1) hanging.emplace_back(x, middle);
    }
    Hang(spine, hanging);
  }

  bool Excludes() const {
    return std::ranges::any_of(view_->Others, [](const DivisionLine& line) { return Yields(line); });
  }
  static bool Yields(const DivisionLine& line) {
    return line.Law.As == faraid::Standing::Excluded && line.Law.Excluder != Kind::Remainder;
  }

  /// The lines of those who yield run around the outermost nodes too.
  int Margin() const { return Excludes() ? m_.Gap : 0; }

  std::pair<int, int> Sides() const {
    const auto [left, right] = rows_.Sides();
    const int least = arrangement_.SpouseBelow ? m_.DeceasedWidth / 2 + m_.Gap : 0;
    return {left - Margin(), std::max(right, least) + Margin()};
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
  TreeRows rows_;
  int right_ = 0;
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
