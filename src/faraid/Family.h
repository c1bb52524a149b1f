#pragma once

#include <array>

#include "faraid/Kinds.h"

namespace faraid {

/// How many of each kind survive the deceased. A class II kind is there (1) or not (0).
struct Family {
  std::array<int, KindCount> Counts{};

  constexpr int& operator[](Kind kind) { return Counts[static_cast<std::size_t>(kind)]; }
  constexpr int operator[](Kind kind) const { return Counts[static_cast<std::size_t>(kind)]; }
  constexpr bool operator==(const Family&) const = default;

  /// The kinds of whom at least one is alive.
  constexpr KindSet Alive() const {
    KindSet alive;
    for (std::size_t i = 0; i < KindCount; ++i) {
      if (Counts[i] > 0) alive = alive | static_cast<Kind>(i);
    }
    return alive;
  }
};

/// The most of a kind that a family may have.
constexpr int MostOf(Kind kind) {
  constexpr KindSet many = Descendants | Siblings;
  if (kind == Kind::Wives) return 4;
  return many.Has(kind) ? 100 : 1;
}

/// Whether a family can be divided among: no count is below 0 or above the most, and there are not wives and
/// a husband at once.
constexpr bool IsPossible(const Family& family) {
  for (std::size_t i = 0; i < KindCount; ++i) {
    if (family.Counts[i] < 0 || family.Counts[i] > MostOf(static_cast<Kind>(i))) return false;
  }
  return family[Kind::Wives] == 0 || family[Kind::Husband] == 0;
}

}  // namespace faraid
