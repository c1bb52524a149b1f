#include "division/TreeSides.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

#include "division/Kinship.h"

namespace qismora {

namespace {

using faraid::Kind;
using faraid::KindSet;

/// If more ranks than these stand beside the deceased, the further ones stand beside the descendants.
constexpr int mostRanksBeside = 6;

constexpr int leftSide = -1;
constexpr int rightSide = 1;

/// Heirs who stand side by side beside the deceased, the nearest first.
struct Rank {
  std::vector<Kind> Heirs;
  /// The vertical place, below the middle of the deceased.
  int Middle = 0;
  std::vector<int> Centres;
  /// Where a line from the side meets it: its only heir, or the line above several.
  int Meets = 0;
};
using Ranks = std::vector<Rank>;

class SideLayout {
 public:
  SideLayout(TreeRows& rows, const TreeMetrics& metrics, KindSet alive, const Arrangement& arrangement,
             const std::array<int, 2>& centresOfParents)
      : rows_(rows), m_(metrics), alive_(alive), arrangement_(arrangement), parents_(centresOfParents) {}

  // Full brothers and sisters hang from the line of the deceased, which is that of both parents; consanguine
  // ones from the father alone. Class II is related through him too, and through others who are not shown.
  void AddLeft() {
    Ranks full = RanksOf(FullKinship);
    Ranks consanguine = RanksOf(ConsanguineKinship);
    Ranks classII = RanksOfClassII();
    const bool below = arrangement_.MostClassIIRows == 0;
    Ranks none;
    Ranks& lowest = below ? classII : none;
    const int from = ClearOfDescendants(full.size() + consanguine.size() + lowest.size(), leftSide,
                                        leftSide * BesideDeceased());
    int outer = PlaceRanks({&full, &consanguine, &lowest}, leftSide, from);
    if (full.size() == 1) {
      HangBelow({{0, DeceasedRow}}, full.front());
    } else if (!full.empty()) {
      const int spine = full.front().Centres.front() + m_.NodeWidth / 2 + m_.Gap;
      HangBeside({{0, DeceasedRow},
                  {0, DeceasedRow, RowPoint::Level::Above},
                  {spine, DeceasedRow, RowPoint::Level::Above}},
                 spine, full);
    }
    outer = HangFrom(FatherPlace, leftSide, consanguine, full.empty(), outer);
    if (classII.empty()) return;
    const bool shared = below && !consanguine.empty() && (consanguine.size() > 1 || !full.empty());
    const int beyond = ClearOfDescendants(classII.size(), leftSide, outer + leftSide * m_.Gap);
    const int spine = shared ? outer : PlaceBelow(FatherPlace, leftSide, beyond);
    if (!below) PlaceRanks({&classII}, leftSide, spine + leftSide * m_.Gap);
    HangBeside(Leave(FatherPlace, spine), spine, classII);
    rows_.AddLink(Kind::Remainder, spine, DeceasedRow, classII.front().Meets);
  }

  // Uterine brothers and sisters hang from the mother alone.
  void AddRight() {
    Ranks uterine = RanksOf(UterineKinship);
    Ranks spouses;
    const KindSet alive = alive_ & faraid::Spouses;
    for (const Kind spouse : alive) spouses.push_back({{spouse}, 0, {}});
    const int outer = PlaceRanks({&uterine, &spouses}, rightSide, rightSide * BesideDeceased());
    HangFrom(MotherPlace, rightSide, uterine, true, outer);
    const int edge = m_.DeceasedWidth / 2 + m_.Gap;
    HangBeside({{0, DeceasedRow}, {edge, DeceasedRow}}, edge, spouses);
  }

 private:
  int BesideDeceased() const { return m_.DeceasedWidth / 2 + 2 * m_.Gap; }

  /// One rank for brothers and sisters together, or one for each.
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

  /// The column from which so many ranks can stand: those beside the descendants must be clear of them.
  int ClearOfDescendants(std::size_t ranks, int side, int from) const {
    if (ranks <= mostRanksBeside) return from;
    return side * std::max(side * from, side * rows_.SideBelow(side) + m_.Gap);
  }

  /// Places ranks one below the other, on a side of a column. Returns how far out they reach.
  int PlaceRanks(std::initializer_list<Ranks*> groups, int side, int from) {
    int count = 0;
    int step = 0;
    std::size_t columns = 0;
    for (const Ranks* group : groups) {
      for (const Rank& rank : *group) {
        ++count;
        columns = std::max(columns, rank.Heirs.size());
        for (const Kind heir : rank.Heirs) step = std::max(step, rows_.HeightOfHeir(heir) + m_.Gap);
      }
    }
    const int across = m_.NodeWidth + m_.Gap;
    int i = 0;
    for (Ranks* group : groups) {
      for (Rank& rank : *group) {
        rank.Middle = (2 * i - std::min(count, mostRanksBeside) + 1) * step / 2;
        int x = from + side * m_.NodeWidth / 2;
        for (const Kind heir : rank.Heirs) {
          rank.Centres.push_back(x);
          if (i < mostRanksBeside) {
            rows_.AddHeir(heir, x, DeceasedRow, rank.Middle);
          } else {
            rows_.AddHeirBesideRows(heir, x, DeceasedRow, rank.Middle);
          }
          x += side * across;
        }
        rank.Meets = rank.Heirs.size() == 1 ? rank.Middle : rank.Middle - step / 2;
        ++i;
      }
    }
    return from + side * (static_cast<int>(columns) * across - m_.Gap);
  }

  /// The column of a line down from a parent, at least this far out. The line leaves below the outer half of
  /// the node or beside it, but never along its edge, and does not meet the line of the couple.
  int PlaceBelow(int parent, int side, int least) const {
    const int centre = CentreOf(parent);
    if (!IsAlive(parent)) return side * std::max(side * least, side * centre + m_.Gap);
    const int out = std::max(side * (least - centre), m_.NodeWidth / 4);
    const int half = m_.NodeWidth / 2;
    const bool alongEdge = out > half - m_.Gap / 2 && out < half + m_.Gap / 2;
    return centre + side * (alongEdge ? half + m_.Gap / 2 : out);
  }
  /// The beginning of a line from a parent down in this column.
  std::vector<RowPoint> Leave(int parent, int x) const {
    const int centre = CentreOf(parent);
    if (IsAlive(parent) && std::abs(x - centre) < m_.NodeWidth / 2) return {{x, DeceasedRow - 1}};
    return {{centre, DeceasedRow - 1}, {x, DeceasedRow - 1}};
  }
  int CentreOf(int parent) const { return parents_[static_cast<std::size_t>(parent)]; }
  bool IsAlive(int parent) const { return alive_.Has(Ascendants[parent].Heir); }

  /// Draws the lines of a rank at the top: from the beginning to a height above the rank, and down to each
  /// heir.
  void HangBelow(const std::vector<RowPoint>& begin, const Rank& rank) {
    for (const int centre : rank.Centres) {
      std::vector<RowPoint> line = begin;
      line.push_back({begin.back().X, DeceasedRow, RowPoint::Level::Above});
      line.push_back({centre, DeceasedRow, RowPoint::Level::Above});
      line.push_back({centre, DeceasedRow, RowPoint::Level::Middle, rank.Middle});
      rows_.AddLine(std::move(line));
    }
  }
  /// Draws the lines of several ranks: from the beginning down a spine beside them, and across to each heir.
  void HangBeside(const std::vector<RowPoint>& begin, int spine, const Ranks& ranks) {
    for (const Rank& rank : ranks) {
      for (const int centre : rank.Centres) {
        std::vector<RowPoint> line = begin;
        line.push_back({spine, DeceasedRow, RowPoint::Level::Middle, rank.Meets});
        line.push_back({centre, DeceasedRow, RowPoint::Level::Middle, rank.Meets});
        line.push_back({centre, DeceasedRow, RowPoint::Level::Middle, rank.Middle});
        rows_.AddLine(std::move(line));
      }
    }
  }
  /// Draws the lines of the children of one parent alone, who stand at the top of their side or below others.
  /// Returns how far out the lines run.
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

  TreeRows& rows_;
  const TreeMetrics& m_;
  KindSet alive_;
  const Arrangement& arrangement_;
  const std::array<int, 2>& parents_;
};

}  // namespace

void AddSides(TreeRows& rows, const TreeMetrics& metrics, KindSet alive, const Arrangement& arrangement,
              const std::array<int, 2>& centresOfParents) {
  SideLayout sides(rows, metrics, alive, arrangement, centresOfParents);
  sides.AddLeft();
  sides.AddRight();
}

}  // namespace qismora
