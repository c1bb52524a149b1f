#pragma once

#include <cstdint>

#include "faraid/Fraction.h"
#include "faraid/Heirs.h"
#include "faraid/List.h"

namespace faraid {

/// As what an heir takes, or why an heir takes nothing.
enum class Standing : std::uint8_t {
  Sharer,
  Residuary,
  SharerAndResiduary,
  Excluded,
  TwoThirdsTaken,
  NotAnHeir,
  NothingLeft,
};

/// How those who take a share together divide it.
enum class Manner : std::uint8_t {
  /// Every head the same.
  Alike,
  /// Men two parts and women one, if both take.
  TwoToOne,
  /// Siblings beside a grandfather: first the full sisters, up to 1/2 or 2/3 of the whole, then the
  /// consanguine siblings; two to one within each.
  FullSiblingsFirst,
};

/// A share that one or more kinds take together.
struct Allotment {
  KindSet Takers;
  Fraction Share;
  Manner Divided = Manner::Alike;
  Standing As = Standing::Sharer;
  Reason Why{};
};

using Allotments = List<Allotment, 12>;

inline constexpr Fraction Half{1, 2};
inline constexpr Fraction Third{1, 3};
inline constexpr Fraction TwoThirds{2, 3};
inline constexpr Fraction Quarter{1, 4};
inline constexpr Fraction Sixth{1, 6};
inline constexpr Fraction Eighth{1, 8};

/// The sum of the allotments.
Fraction Total(const Allotments& allotments);

/// The number of parts of the takers: two for a man and one for a woman if both take, else one per head.
int Parts(const Survivors& survivors, KindSet takers);

/// The most that full sisters beside a grandfather take of the whole before consanguine siblings: the share
/// that they would have without him. Rule of Zayd.
Fraction MostOfFullSisters(const Survivors& survivors);

/// What one head of a kind among the takers receives of an allotment.
Fraction SharePerHead(const Heirs& heirs, const Allotment& allotment, Kind kind);

}  // namespace faraid
