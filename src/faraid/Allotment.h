#pragma once

#include <cstdint>

#include "faraid/Fraction.h"
#include "faraid/Heirs.h"
#include "faraid/List.h"

namespace faraid {

/// As what an heir takes.
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
  /// All heads alike.
  Alike,
  /// Men two parts, women one, where both take.
  TwoToOne,
  /// Siblings beside a grandfather: full sisters up to 1/2 or 2/3 of the whole first, then the consanguine
  /// siblings; within each two to one.
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

/// What the allotments come to together.
Fraction Total(const Allotments& allotments);

/// The parts of the takers: men two and women one where both take, else the heads.
int Parts(const Survivors& survivors, KindSet takers);

/// What full sisters beside a grandfather take of the whole at most before consanguine siblings: the share
/// that they would have had without him. Rule of Zayd.
Fraction MostOfFullSisters(const Survivors& survivors);

/// What one head of a kind among the takers receives of an allotment.
Fraction SharePerHead(const Heirs& heirs, const Allotment& allotment, Kind kind);

}  // namespace faraid
