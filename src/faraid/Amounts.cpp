#include "faraid/Amounts.h"

#include <algorithm>
#include <array>
#include <numeric>

namespace faraid {

Amounts AmountsOf(const Division& division, Hundredths net) {
  __extension__ using Wide = __int128;
  const std::size_t lines = division.Rows.Size();
  Amounts amounts;
  // What each head loses by rounding down, in parts of one hundredth over the corrected base.
  std::array<std::int64_t, KindCount + 1> lost{};
  Hundredths left = net;
  for (const Row& row : division.Rows) {
    const std::int64_t parts = row.PerHead.Num() * (division.CorrectedBase / row.PerHead.Den());
    const Wide exact = Wide{net} * parts;
    const auto each = static_cast<Hundredths>(exact / division.CorrectedBase);
    lost[amounts.Size()] = static_cast<std::int64_t>(exact % division.CorrectedBase);
    amounts.Add({.Together = each * row.Heads, .Each = each});
    left -= each * row.Heads;
  }

  std::array<std::size_t, KindCount + 1> order{};
  std::iota(order.begin(), order.begin() + lines, std::size_t{0});
  std::stable_sort(order.begin(), order.begin() + lines,
                   [&](std::size_t a, std::size_t b) { return lost[a] > lost[b]; });
  for (std::size_t i = 0; i < lines && left > 0; ++i) {
    Amount& amount = amounts[order[i]];
    amount.HeadsWithOneMore = static_cast<int>(std::min<Hundredths>(left, division.Rows[order[i]].Heads));
    amount.Together += amount.HeadsWithOneMore;
    left -= amount.HeadsWithOneMore;
  }
  return amounts;
}

}  // namespace faraid
