#pragma once

#include "faraid/Allotment.h"

namespace faraid {

/// One row of a division.
struct Row {
  Kind Heir = Kind::Remainder;
  int Heads = 0;
  Standing As = Standing::Residuary;
  /// Who excludes the heir; the remainder if nobody does.
  Kind Excluder = Kind::Remainder;
  /// What all heads receive, and what each receives, of a net estate of 1.
  Fraction Share{};
  Fraction PerHead{};
  Reason Why{};

  constexpr bool operator==(const Row&) const = default;
};

/// Who receives what: a row for each kind that is alive, in the order of the kinds, and the remainder last.
struct Division {
  List<Row, KindCount + 1> Rows{};
  /// The base (asl): the least common denominator of the fixed shares before Awl and Radd, or the number of
  /// residuary parts; 0 if no heir takes anything.
  std::int64_t Base = 0;
  /// After Awl the raised base, which is the sum of the numerators; else 0.
  std::int64_t RaisedTo = 0;
  /// The corrected base (tashih): the least common denominator of what each head receives.
  std::int64_t CorrectedBase = 1;

  constexpr bool operator==(const Division&) const = default;
};

/// Divides among the family by the law of the school. A family that is not possible (IsPossible) throws
/// std::invalid_argument. It allocates no memory.
Division Divide(const Family& family, School school);

}  // namespace faraid
