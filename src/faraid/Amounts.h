#pragma once

#include "faraid/Division.h"
#include "faraid/Estate.h"

namespace faraid {

/// What one line of a division receives in money.
struct Amount {
  Hundredths Together = 0;
  /// What each head receives, and how many of the heads receive one hundredth more.
  Hundredths Each = 0;
  int HeadsWithOneMore = 0;

  constexpr bool operator==(const Amount&) const = default;
};

using Amounts = List<Amount, KindCount + 1>;

/// Divides a net estate, which is not negative, by the largest remainder method: each head's amount is
/// rounded down, and the remaining hundredths go one each to the heads that lost most (of equal ones, to the
/// first lines). The amounts, one for each line, add up to the net estate.
Amounts AmountsOf(const Division& division, Hundredths net);

}  // namespace faraid
