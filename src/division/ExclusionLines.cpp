#include "division/ExclusionLines.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <queue>

namespace qismora {

namespace {

// In pixels of detour.
constexpr int costOfTurn = 20;
constexpr int costOfCrossing = 150;
/// Each pixel along a line of the family.
constexpr int costAlong = 20;

/// Lanes no farther apart than this are one.
constexpr int nearness = 2;

/// A straight part of a line of the family.
struct Stretch {
  int At = 0;
  int From = 0;
  int To = 0;
};

/// The lanes in which lines can run, as a graph. A state is a crossing of two lanes and the axis along which
/// the way goes on from it. Dijkstra's algorithm finds the cheapest ways from all states to one node.
class Grid {
 public:
  Grid(const FamilyTree& tree, int gap, int rowGap, const std::vector<int>& lanes)
      : tree_(tree), shift_(gap / 4) {
    ys_ = lanes;
    for (const TreeNode& node : tree.Nodes) {
      if (node.What == TreeNode::Role::Link) continue;
      for (const int x : {-gap / 2, node.Width / 4, node.Width - node.Width / 4, node.Width + gap / 2})
        xs_.push_back(node.X + x);
      for (const int y : {node.Height / 4, node.Height - node.Height / 4}) ys_.push_back(node.Y + y);
      for (const int y : {node.Y - gap / 2, node.Y + node.Height + gap / 2}) {
        // Between rows, the lanes given are enough.
        const bool between = std::ranges::any_of(lanes, [&](int l) { return std::abs(l - y) <= rowGap / 2; });
        if (!between) ys_.push_back(y);
      }
    }
    Tidy(xs_, tree.Width);
    Tidy(ys_, tree.Height);
    FindNodes();
    FindCosts();
  }

  /// Finds the cheapest way from every state to a node.
  void FindWaysTo(std::size_t target) {
    cost_.assign(2 * Count(), far);
    next_.assign(2 * Count(), nowhere);
    joined_.assign(2 * Count(), false);
    for (std::size_t cell = 0; cell < Count(); ++cell) {
      if (nodes_[cell] != static_cast<int>(target) || !isInner_[cell]) continue;
      for (const std::size_t axis : {across, down}) {
        cost_[2 * cell + axis] = 0;
        open_.push({0, 2 * cell + axis});
      }
    }
    while (!open_.empty()) {
      const auto [cost, state] = open_.top();
      open_.pop();
      if (cost == cost_[state]) Expand(state, target);
    }
  }

  /// Draws the line of an exclusion, whose target FindWaysTo was called with. It is so many half shifts
  /// beside the lanes, so that lines to different heirs do not cover each other.
  void Draw(TreeExclusion& exclusion, int halfShifts) {
    const std::size_t from = exclusion.From;
    const int shift = halfShifts * shift_ / 2;
    std::size_t state = nowhere;
    for (std::size_t cell = 0; cell < Count(); ++cell) {
      if (nodes_[cell] != static_cast<int>(from) || !isInner_[cell]) continue;
      for (const std::size_t axis : {across, down}) {
        const std::size_t candidate = 2 * cell + axis;
        if (next_[candidate] != nowhere && (state == nowhere || cost_[candidate] < cost_[state]))
          state = candidate;
      }
    }
    if (state == nowhere) {
      // There is always a way around. A line across others would be better than none.
      exclusion.Line = exclusion.Alone = {tree_.Nodes[from].Centre(), tree_.Nodes[exclusion.To].Centre()};
      return;
    }
    bool alone = true;
    for (; state != nowhere; state = next_[state]) {
      const TreePoint point = {xs_[state / 2 % xs_.size()] + shift, ys_[state / 2 / xs_.size()] + shift};
      Append(exclusion.Line, point);
      if (alone) Append(exclusion.Alone, point);
      if (joined_[state]) alone = false;
      joined_[state] = true;
    }
    const bool whole = alone;
    Clip(exclusion.Line[0], exclusion.Line[1], tree_.Nodes[from]);
    exclusion.Alone[0] = exclusion.Line[0];
    const std::size_t last = exclusion.Line.size() - 1;
    Clip(exclusion.Line[last], exclusion.Line[last - 1], tree_.Nodes[exclusion.To]);
    if (whole) exclusion.Alone = exclusion.Line;
  }

 private:
  static constexpr std::size_t across = 0;
  static constexpr std::size_t down = 1;
  static constexpr std::size_t nowhere = std::numeric_limits<std::size_t>::max();
  static constexpr int far = std::numeric_limits<int>::max();
  static constexpr int nobody = -1;

  std::size_t Count() const { return xs_.size() * ys_.size(); }

  static void Tidy(std::vector<int>& lanes, int most) {
    std::erase_if(lanes, [most](int lane) { return lane < 0 || lane > most; });
    std::ranges::sort(lanes);
    lanes.erase(std::unique(lanes.begin(), lanes.end(),
                            [](int before, int lane) { return lane - before <= nearness; }),
                lanes.end());
  }

  void FindNodes() {
    nodes_.assign(Count(), nobody);
    isInner_.assign(Count(), false);
    for (std::size_t n = 0; n < tree_.Nodes.size(); ++n) {
      const TreeNode& node = tree_.Nodes[n];
      if (node.What == TreeNode::Role::Link) continue;
      for (std::size_t y = 0; y < ys_.size(); ++y) {
        const int inY = Depth(ys_[y], node.Y, node.Height);
        if (inY < -shift_) continue;
        for (std::size_t x = 0; x < xs_.size(); ++x) {
          const int in = std::min(inY, Depth(xs_[x], node.X, node.Width));
          if (in < -shift_) continue;
          nodes_[y * xs_.size() + x] = static_cast<int>(n);
          isInner_[y * xs_.size() + x] = in >= shift_;
        }
      }
    }
  }
  /// How far a lane is within a node, from its nearer edge; negative outside.
  static int Depth(int lane, int from, int size) { return std::min(lane - from, from + size - lane); }

  // The cost from each crossing to the next one, to the right and downwards.
  void FindCosts() {
    std::vector<Stretch> stretches[2];
    for (const TreeLine& line : tree_.Lines) {
      for (std::size_t i = 1; i < line.size(); ++i) {
        const TreePoint& a = line[i - 1];
        const TreePoint& b = line[i];
        if (a.Y == b.Y) stretches[across].push_back({a.Y, std::min(a.X, b.X), std::max(a.X, b.X)});
        if (a.X == b.X) stretches[down].push_back({a.X, std::min(a.Y, b.Y), std::max(a.Y, b.Y)});
      }
    }
    for (const std::size_t axis : {across, down}) {
      const std::vector<int>& along = axis == across ? xs_ : ys_;
      const std::vector<int>& other = axis == across ? ys_ : xs_;
      steps_[axis].assign(Count(), 0);
      for (std::size_t o = 0; o < other.size(); ++o) {
        for (std::size_t i = 0; i + 1 < along.size(); ++i) {
          int cost = along[i + 1] - along[i];
          for (const Stretch& line : stretches[axis]) {
            const int shared = std::min(along[i + 1], line.To) - std::max(along[i], line.From);
            if (shared > 0 && std::abs(line.At - other[o]) <= 2 * nearness) cost += costAlong * shared;
          }
          for (const Stretch& line : stretches[1 - axis]) {
            if (line.At > along[i] && line.At <= along[i + 1] && line.From <= other[o] && other[o] <= line.To)
              cost += costOfCrossing;
          }
          steps_[axis][axis == across ? o * xs_.size() + i : i * xs_.size() + o] = cost;
        }
      }
    }
  }

  // Goes on to the four neighbours. Within a node the way is straight, and it enters no node but its own two.
  void Expand(std::size_t state, std::size_t target) {
    const std::size_t cell = state / 2;
    const std::size_t x = cell % xs_.size();
    const std::size_t y = cell / xs_.size();
    const auto go = [&](std::size_t to, std::size_t axis, int step) {
      const int node = nodes_[cell];
      if (node != nobody && state % 2 != axis) return;
      if (node == nobody || node == static_cast<int>(target) || node == nodes_[to])
        Relax(state, to, axis, step);
    };
    if (x > 0) go(cell - 1, across, steps_[across][cell - 1]);
    if (x + 1 < xs_.size()) go(cell + 1, across, steps_[across][cell]);
    if (y > 0) go(cell - xs_.size(), down, steps_[down][cell - xs_.size()]);
    if (y + 1 < ys_.size()) go(cell + xs_.size(), down, steps_[down][cell]);
  }
  void Relax(std::size_t from, std::size_t cell, std::size_t axis, int step) {
    const std::size_t state = 2 * cell + axis;
    const int cost = cost_[from] + step + (from % 2 == axis ? 0 : costOfTurn);
    if (cost >= cost_[state]) return;
    cost_[state] = cost;
    next_[state] = from;
    open_.push({cost, state});
  }

  // A point that continues a straight line replaces its last point.
  static void Append(TreeLine& line, const TreePoint& point) {
    if (line.size() >= 2) {
      const TreePoint& a = line[line.size() - 2];
      const TreePoint& b = line.back();
      if ((a.X == b.X && b.X == point.X) || (a.Y == b.Y && b.Y == point.Y)) line.pop_back();
    }
    line.push_back(point);
  }

  // Moves the end of a line from within a node to the edge at which the line leaves it.
  static void Clip(TreePoint& end, const TreePoint& next, const TreeNode& node) {
    if (end.Y == next.Y) end.X = next.X < end.X ? node.X : node.X + node.Width;
    if (end.X == next.X) end.Y = next.Y < end.Y ? node.Y : node.Y + node.Height;
  }

  struct Open {
    int Cost;
    std::size_t State;
    bool operator<(const Open& other) const { return Cost > other.Cost; }
  };

  const FamilyTree& tree_;
  /// How far apart lines to different heirs run in one lane.
  int shift_;
  std::vector<int> xs_;
  std::vector<int> ys_;
  /// The node in which each crossing is, or nobody.
  std::vector<int> nodes_;
  /// Whether it is so far within the node that a shifted line, too, ends at the node's edge.
  std::vector<bool> isInner_;
  std::vector<int> steps_[2];
  // For each state: the cost to the target, the next state on the way, and whether a line was drawn through
  // it.
  std::vector<int> cost_;
  std::vector<std::size_t> next_;
  std::vector<bool> joined_;
  /// The states to expand, the cheapest first.
  std::priority_queue<Open> open_;
};

}  // namespace

void DrawExclusionLines(FamilyTree& tree, const TreeMetrics& metrics) {
  if (tree.Exclusions.empty()) return;
  Grid grid(tree, metrics.Gap, metrics.RowGap, tree.Lanes);
  std::vector<std::size_t> targets;
  for (const TreeExclusion& exclusion : tree.Exclusions) {
    if (std::ranges::find(targets, exclusion.To) == targets.end()) targets.push_back(exclusion.To);
  }
  constexpr int halfShifts[] = {0, 2, -2, 1, -1};
  for (std::size_t i = 0; i < targets.size(); ++i) {
    grid.FindWaysTo(targets[i]);
    for (TreeExclusion& exclusion : tree.Exclusions) {
      if (exclusion.To == targets[i]) grid.Draw(exclusion, halfShifts[i % std::size(halfShifts)]);
    }
  }
}

}  // namespace qismora
