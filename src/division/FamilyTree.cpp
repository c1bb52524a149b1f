#include "division/FamilyTree.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

#include "division/Kinship.h"
#include "division/TreeSides.h"

namespace qismora {

namespace {

using faraid::Kind;
using faraid::KindSet;

constexpr KindSet halfSiblings = faraid::ConsanguineSiblings | faraid::UterineSiblings;

/// If no arrangement is narrow enough, a pixel of width beyond the widest counts like so many of height.
constexpr int costOfWidth = 3;

// From the lowest to the narrowest.
constexpr Arrangement arrangements[] = {
    {true, 3}, {true, 4}, {true, 6}, {true, 0}, {false, 4}, {false, 6}, {false, 12}, {false, 0},
};

class Layout {
 public:
  Layout(const DivisionView& view, const TreeMetrics& metrics, const Arrangement& arrangement)
      : view_(&view),
        m_(metrics),
        alive_(HeirsOf(view.Takers) | HeirsOf(view.Others)),
        rows_(metrics, HeirsOf(view.Takers)) {
    rows_.AddDeceased();
    AddAscendants();
    AddDescendants();
    AddSides(rows_, m_, alive_, arrangement, parents_);
  }

  int Width() const {
    const auto [left, right] = Sides();
    return right - left;
  }
  /// Whether it takes less space, if a tree should be no wider than this.
  bool IsBetter(const Layout& other, int widest) const {
    const int excess = std::max(0, Width() - widest);
    const int othersExcess = std::max(0, other.Width() - widest);
    if ((excess == 0) != (othersExcess == 0)) return excess == 0;
    return Height() + costOfWidth * excess < other.Height() + costOfWidth * othersExcess;
  }
  int Height() const { return rows_.Height(); }

  FamilyTree Finish() {
    FamilyTree tree;
    rows_.Place(tree, Sides(), Margin(), alive_.HasAny(faraid::FullSiblings));
    // The deceased stays the first.
    std::ranges::sort(tree.Nodes.begin() + 1, tree.Nodes.end(), [](const TreeNode& a, const TreeNode& b) {
      return std::pair(a.Y, a.X) < std::pair(b.Y, b.X);
    });
    AddExclusions(tree);
    return tree;
  }

 private:
  static KindSet HeirsOf(const std::vector<DivisionLine>& lines) {
    KindSet heirs;
    for (const DivisionLine& line : lines) {
      if (line.Heir() != Kind::Remainder) heirs = heirs | line.Heir();
    }
    return heirs;
  }

  /// Whether an ascendant is shown, alive or as a link. Half brothers and sisters need both parents, so that
  /// the picture shows which of them is theirs too.
  bool IsNeeded(int ascendant) const {
    if (ascendant == Nobody) return false;
    const Ascendant& person = Ascendants[ascendant];
    if (ascendant == FatherPlace && alive_.HasAny(halfSiblings | faraid::ClassII)) return true;
    if (ascendant == MotherPlace && alive_.HasAny(halfSiblings)) return true;
    return alive_.Has(person.Heir) || std::ranges::any_of(person.Parents, [&](int p) { return IsNeeded(p); });
  }

  std::vector<int> NeededOf(const std::array<int, 2>& parents) const {
    std::vector<int> needed;
    for (const int parent : parents) {
      if (IsNeeded(parent)) needed.push_back(parent);
    }
    return needed;
  }

  /// Where a person stands: the centre of the node, and the width of it and of all above it.
  struct Block {
    int Width = 0;
    int Centre = 0;
  };
  /// Places the parents of a person, and theirs, from this column on, like the children of an ordinary tree
  /// upwards. The person is in this row and has this width.
  Block PlaceParents(const std::array<int, 2>& parents, int left, int row, int leastWidth) {
    std::vector<int> centres;
    int width = 0;
    const std::vector<int> needed = NeededOf(parents);
    if (needed.empty()) return {leastWidth, left + leastWidth / 2};
    // If the person is wider than all above, these stand over the middle.
    int x = left + std::max(0, (leastWidth - WidthAbove(needed)) / 2);
    for (const int parent : needed) {
      const Ascendant& person = Ascendants[parent];
      const int parentRow = DeceasedRow - person.Generation;
      const Block block = PlaceParents(person.Parents, x, parentRow, WidthOf(person));
      if (alive_.Has(person.Heir)) {
        rows_.AddHeir(person.Heir, block.Centre, parentRow);
      } else {
        rows_.AddLink(person.Heir, block.Centre, parentRow);
      }
      if (person.Generation == 1) parents_[static_cast<std::size_t>(parent)] = block.Centre;
      centres.push_back(block.Centre);
      x += block.Width + m_.Gap;
      width += block.Width + (width > 0 ? m_.Gap : 0);
    }
    const int centre = (centres.front() + centres.back()) / 2;
    for (const int parent : centres) {
      rows_.AddLine({{parent, row - 1},
                     {parent, row, RowPoint::Level::FarAbove},
                     {centre, row, RowPoint::Level::FarAbove},
                     {centre, row}});
    }
    return {std::max(width, leastWidth), centre};
  }
  int WidthOf(const Ascendant& person) const { return alive_.Has(person.Heir) ? m_.NodeWidth : m_.Link; }
  /// The width of these people side by side, each with all above.
  int WidthAbove(const std::vector<int>& people) const {
    int width = 0;
    for (const int i : people) {
      const Ascendant& person = Ascendants[i];
      width += std::max(WidthAbove(NeededOf(person.Parents)), WidthOf(person)) + (width > 0 ? m_.Gap : 0);
    }
    return width;
  }

  // Laid out from 0 and then moved, so that the deceased stands between the parents.
  void AddAscendants() {
    const auto before = rows_.Count();
    const Block block = PlaceParents({FatherPlace, MotherPlace}, 0, DeceasedRow, 0);
    rows_.MoveRight(before, -block.Centre);
    for (int& centre : parents_) centre -= block.Centre;
  }

  // The trunk runs down the middle, through a link for the child who has died.
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
      const int side = alone ? 0 : (m_.NodeWidth + m_.Gap + (goesOn ? m_.Link + m_.Gap : 0)) / 2;
      if (goesOn) {
        rows_.AddLink(Kind::Remainder, 0, row);
        rows_.AddLine({{0, row - 1}, {0, row}});
      }
      for (const auto& [heir, centre] :
           {std::pair(Descents[g].Male, -side), std::pair(Descents[g].Female, side)}) {
        if (!alive_.Has(heir)) continue;
        rows_.AddHeir(heir, centre, row);
        rows_.AddLine({{0, row - 1},
                       {0, row, RowPoint::Level::Above},
                       {centre, row, RowPoint::Level::Above},
                       {centre, row}});
      }
    }
  }

  static bool HasExcluder(const DivisionLine& line) {
    return line.Law.As == faraid::Standing::Excluded && line.Law.Excluder != Kind::Remainder;
  }

  /// Space around the outermost nodes for the lines of excluded heirs.
  int Margin() const { return std::ranges::any_of(view_->Others, HasExcluder) ? m_.Gap : 0; }

  std::pair<int, int> Sides() const {
    const auto [left, right] = rows_.Sides();
    return {left - Margin(), right + Margin()};
  }

  void AddExclusions(FamilyTree& tree) const {
    const auto find = [&](Kind heir) {
      return static_cast<std::size_t>(std::ranges::find(tree.Nodes, heir, &TreeNode::Heir) -
                                      tree.Nodes.begin());
    };
    for (const DivisionLine& line : view_->Others) {
      if (HasExcluder(line)) tree.Exclusions.push_back({find(line.Heir()), find(line.Law.Excluder), {}, {}});
    }
  }

  const DivisionView* view_;
  TreeMetrics m_;
  KindSet alive_;
  TreeRows rows_;
  /// The centres of father and mother, if they are shown.
  std::array<int, 2> parents_{};
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
