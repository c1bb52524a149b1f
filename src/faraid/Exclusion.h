#pragma once

#include <array>

#include "faraid/Heirs.h"

namespace faraid {

/// Who excludes a kind, and the source of that.
struct Exclusion {
  Kind By = Kind::Remainder;
  Source Basis = Source::None;
};

/// Exclusion (hajb), decided before all else.
struct Exclusions {
  KindSet Excluded;
  /// For each kind that is excluded, by its number.
  std::array<Exclusion, KindCount> Why{};
};

/// Decides who is excluded, and by whom first.
Exclusions Exclude(const Survivors& survivors);

}  // namespace faraid
