#include "division/FamilyTree.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <optional>
#include <utility>

#include "division/Kinship.h"
#include "division/TreeRows.h"

namespace qismora {

namespace {

using faraid::Kind;
using faraid::KindSet;

constexpr KindSet halfSiblings = faraid::ConsanguineSiblings | faraid::UterineSiblings;
constexpr int father = 0;
constexpr int mother = 1;
static_assert(Ascendants[father].Heir == Kind::Father && Ascendants[mother].Heir == Kind::Mother);

/// Where no arrangement is narrow enough, so much height is worth one more of width.
constexpr int costOfWidth = 3;

/// Of those who stand beside the deceased in more rows, the further ones stand beside the descendants.
constexpr int mostRowsBeside = 6;

/// How brothers and sisters and class II stand beside the deceased.
struct Arrangement {
  /// Sisters beside their brothers, or below them.
  bool SistersBeside;
  /// Of class II, to the left of brothers and sisters; 0 where class II stands below them.
  int MostClassIIRows;
};

// From the lowest to the narrowest.
constexpr Arrangement arrangements[] = {
    {true, 3}, {true, 4}, {true, 6}, {true, 0}, {false, 4}, {false, 6}, {false, 12}, {false, 0},
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
    AddLeftSide();
    AddRightSide();
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
    rows_.Place(tree, Sides(), Margin(), alive_.HasAny(faraid::FullSiblings));
    // The deceased stays the first.
    std::ranges::sort(tree.Nodes.begin() + 1, tree.Nodes.end(), [](const TreeNode& a, const TreeNode& b) {
      return std::pair(a.Y, a.X) < std::pair(b.Y, b.X);
    });
    AddExclusions(tree);
    return tree;
  }

 private:
  int Step() const { return m_.NodeWidth + m_.Gap; }
  int HeightOf(Kind heir) const { return taking_.Has(heir) ? m_.NodeHeight : m_.OtherHeight; }

  void Add(const TreeNode& node, int middle, int row) { rows_.Add(node, middle, row); }
  TreeNode HeirNode(Kind heir, int centre) const {
    return {TreeNode::Role::Heir, heir, centre - m_.NodeWidth / 2, 0, m_.NodeWidth, HeightOf(heir)};
  }
  TreeNode LinkNode(Kind heir, int centre) const {
    return {TreeNode::Role::Link, heir, centre - m_.Link / 2, 0, m_.Link, m_.Link};
  }
  void AddHeir(Kind heir, int centre, int row) { Add(HeirNode(heir, centre), 0, row); }
  void AddLink(Kind heir, int centre, int row) { Add(LinkNode(heir, centre), 0, row); }
  void AddLine(std::vector<TreeEnd> ends) { rows_.AddLine(std::move(ends)); }

  /// Half brothers and sisters need both parents, so that the picture shows which of them is theirs too.
  bool IsNeeded(int ascendant) const {
    if (ascendant == Nobody) return false;
    const Ascendant& person = Ascendants[ascendant];
    if (ascendant == father && alive_.HasAny(halfSiblings | faraid::ClassII)) return true;
    if (ascendant == mother && alive_.HasAny(halfSiblings)) return true;
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
        AddLink(person.Heir, block.Centre, parentRow);
      }
      if (person.Generation == 1) parents_[static_cast<std::size_t>(parent)] = block.Centre;
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
    const Block block = PlaceParents({father, mother}, 0, DeceasedRow, 0);
    rows_.MoveRight(before, -block.Centre);
    for (int& centre : parents_) centre -= block.Centre;
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
        AddLink(Kind::Remainder, 0, row);
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

  /// Heirs who stand side by side beside the deceased, the nearest first.
  struct Rank {
    std::vector<Kind> Heirs;
    int Middle = 0;
    std::vector<int> Centres;
    /// Where a line from beside meets it: its only heir, or the line above several.
    int Meets = 0;
  };
  using Ranks = std::vector<Rank>;

  /// One rank for each kind of kinship, or for each kind of heir.
  Ranks RanksOf(const Descent& kinship) const {
    Ranks ranks;
    for (const Kind heir : {kinship.Female, kinship.Male}) {
      if (!alive_.Has(heir)) continue;
      if (ranks.empty() || !arrangement_.SistersBeside) ranks.emplace_back();
      ranks.back().Heirs.push_back(heir);
    }
    return ranks;
  }
  Ranks RanksOfClassII() const {
    std::vector<Kind> heirs;
    const KindSet classII = alive_ & faraid::ClassII;
    for (const Kind heir : classII) heirs.push_back(heir);
    const int count = static_cast<int>(heirs.size());
    const int most = arrangement_.MostClassIIRows;
    const int columns = most == 0 ? (arrangement_.SistersBeside ? 2 : 1) : (count + most - 1) / most;
    Ranks ranks;
    for (int i = 0; i < count; ++i) {
      if (i % columns == 0) ranks.emplace_back();
      ranks.back().Heirs.push_back(heirs[static_cast<std::size_t>(i)]);
    }
    return ranks;
  }

  /// Where so many ranks can stand: those that stand beside the descendants are clear of them.
  int ClearOfDescendants(std::size_t ranks, int side, int from) const {
    if (ranks <= mostRowsBeside) return from;
    return side * std::max(side * from, side * rows_.SideBelow(side) + m_.Gap);
  }

  /// Places ranks one below the other, to the left (-1) or to the right (1) of a vertical line. Returns their
  /// other side.
  int PlaceRanks(std::initializer_list<Ranks*> groups, int side, int from) {
    int count = 0;
    int step = 0;
    std::size_t columns = 0;
    for (const Ranks* group : groups) {
      for (const Rank& rank : *group) {
        ++count;
        columns = std::max(columns, rank.Heirs.size());
        for (const Kind heir : rank.Heirs) step = std::max(step, HeightOf(heir) + m_.Gap);
      }
    }
    int i = 0;
    for (Ranks* group : groups) {
      for (Rank& rank : *group) {
        rank.Middle = (2 * i - std::min(count, mostRowsBeside) + 1) * step / 2;
        int x = from + side * m_.NodeWidth / 2;
        for (const Kind heir : rank.Heirs) {
          rank.Centres.push_back(x);
          if (i < mostRowsBeside) {
            rows_.Add(HeirNode(heir, x), rank.Middle, DeceasedRow);
          } else {
            rows_.AddBesideRows(HeirNode(heir, x), rank.Middle, DeceasedRow);
          }
          x += side * Step();
        }
        rank.Meets = rank.Heirs.size() == 1 ? rank.Middle : rank.Middle - step / 2;
        ++i;
      }
    }
    return from + side * (static_cast<int>(columns) * Step() - m_.Gap);
  }

  /// A place for a line down from a parent, so far out at least: it leaves below the outer half of the node
  /// or beside it, but never along its edge, and does not meet the line of the couple.
  int PlaceBelow(int parent, int side, int least) const {
    const int centre = parents_[static_cast<std::size_t>(parent)];
    if (!IsAlive(parent)) return side * std::max(side * least, side * centre + m_.Gap);
    const int out = std::max(side * (least - centre), m_.NodeWidth / 4);
    const int half = m_.NodeWidth / 2;
    const bool alongEdge = out > half - m_.Gap / 2 && out < half + m_.Gap / 2;
    return centre + side * (alongEdge ? half + m_.Gap / 2 : out);
  }
  /// The beginning of a line from a parent down to there.
  std::vector<TreeEnd> Leave(int parent, int x) const {
    const int centre = parents_[static_cast<std::size_t>(parent)];
    if (IsAlive(parent) && std::abs(x - centre) < m_.NodeWidth / 2) return {{x, DeceasedRow - 1}};
    return {{centre, DeceasedRow - 1}, {x, DeceasedRow - 1}};
  }
  bool IsAlive(int ascendant) const { return alive_.Has(Ascendants[ascendant].Heir); }

  /// A rank at the top hangs from a line above it, which begins as told.
  void HangBelow(const std::vector<TreeEnd>& begin, const Rank& rank) {
    for (const int centre : rank.Centres) {
      std::vector<TreeEnd> line = begin;
      line.push_back({begin.back().X, DeceasedRow, TreeEnd::Edge::Above});
      line.push_back({centre, DeceasedRow, TreeEnd::Edge::Above});
      line.push_back({centre, DeceasedRow, TreeEnd::Edge::Middle, rank.Middle});
      AddLine(std::move(line));
    }
  }
  /// Several ranks hang from a spine beside them.
  void HangBeside(const std::vector<TreeEnd>& begin, int spine, const Ranks& ranks) {
    for (const Rank& rank : ranks) {
      for (const int centre : rank.Centres) {
        std::vector<TreeEnd> line = begin;
        line.push_back({spine, DeceasedRow, TreeEnd::Edge::Middle, rank.Meets});
        line.push_back({centre, DeceasedRow, TreeEnd::Edge::Middle, rank.Meets});
        line.push_back({centre, DeceasedRow, TreeEnd::Edge::Middle, rank.Middle});
        AddLine(std::move(line));
      }
    }
  }
  /// The children of one parent alone, who stand above or below others on their side. Returns how far out
  /// their lines run.
  int HangFrom(int parent, int side, const Ranks& ranks, bool atTop, int outer) {
    if (ranks.empty()) return outer;
    if (atTop && ranks.size() == 1) {
      const int x = PlaceBelow(parent, side, ranks.front().Centres.back());
      HangBelow(Leave(parent, x), ranks.front());
      return side * std::max(side * outer, side * x);
    }
    const int spine = PlaceBelow(parent, side, outer + side * m_.Gap);
    HangBeside(Leave(parent, spine), spine, ranks);
    return spine;
  }

  int BesideDeceased() const { return m_.DeceasedWidth / 2 + 2 * m_.Gap; }

  // Full brothers and sisters hang from the line of the deceased, that is of both parents; consanguine ones
  // from the father alone. Class II is related through him too, and through others who are left out.
  void AddLeftSide() {
    constexpr int left = -1;
    Ranks full = RanksOf(FullKinship);
    Ranks consanguine = RanksOf(ConsanguineKinship);
    Ranks classII = RanksOfClassII();
    const bool below = arrangement_.MostClassIIRows == 0;
    Ranks none;
    Ranks& lowest = below ? classII : none;
    const int from =
        ClearOfDescendants(full.size() + consanguine.size() + lowest.size(), left, left * BesideDeceased());
    int outer = PlaceRanks({&full, &consanguine, &lowest}, left, from);
    if (full.size() == 1) {
      HangBelow({{0, DeceasedRow}}, full.front());
    } else if (!full.empty()) {
      const int spine = full.front().Centres.front() + m_.NodeWidth / 2 + m_.Gap;
      HangBeside({{0, DeceasedRow},
                  {0, DeceasedRow, TreeEnd::Edge::Above},
                  {spine, DeceasedRow, TreeEnd::Edge::Above}},
                 spine, full);
    }
    outer = HangFrom(father, left, consanguine, full.empty(), outer);
    if (classII.empty()) return;
    const bool shared = below && !consanguine.empty() && (consanguine.size() > 1 || !full.empty());
    const int beyond = ClearOfDescendants(classII.size(), left, outer + left * m_.Gap);
    const int spine = shared ? outer : PlaceBelow(father, left, beyond);
    if (!below) PlaceRanks({&classII}, left, spine + left * m_.Gap);
    HangBeside(Leave(father, spine), spine, classII);
    rows_.Add(LinkNode(Kind::Remainder, spine), classII.front().Meets, DeceasedRow);
  }

  // Uterine brothers and sisters hang from the mother alone.
  void AddRightSide() {
    constexpr int right = 1;
    Ranks uterine = RanksOf(UterineKinship);
    Ranks spouses;
    const KindSet alive = alive_ & faraid::Spouses;
    for (const Kind spouse : alive) spouses.push_back({{spouse}, 0, {}});
    const int outer = PlaceRanks({&uterine, &spouses}, right, right * BesideDeceased());
    HangFrom(mother, right, uterine, true, outer);
    const int edge = m_.DeceasedWidth / 2 + m_.Gap;
    HangBeside({{0, DeceasedRow}, {edge, DeceasedRow}}, edge, spouses);
  }

  bool Excludes() const {
    return std::ranges::any_of(view_->Others, [](const DivisionLine& line) { return Exclusions(line); });
  }
  static bool Exclusions(const DivisionLine& line) {
    return line.Law.As == faraid::Standing::Excluded && line.Law.Excluder != Kind::Remainder;
  }

  /// The lines of those who yield run around the outermost nodes too.
  int Margin() const { return Excludes() ? m_.Gap : 0; }

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
      if (Exclusions(line)) tree.Exclusions.push_back({find(line.Heir()), find(line.Law.Excluder), {}, {}});
    }
  }

  const DivisionView* view_;
  TreeMetrics m_;
  Arrangement arrangement_;
  KindSet taking_;
  KindSet alive_;
  TreeRows rows_;
  /// The centres of father and mother, where they are shown.
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
