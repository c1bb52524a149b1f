#pragma once

#include "faraid/Allotment.h"

namespace faraid {

/// One line of a division.
struct Row {
  Kind Heir = Kind::Remainder;
  int Heads = 0;
  Standing As = Standing::Residuary;
  /// Who excludes; the remainder where nobody does.
  Kind Excluder = Kind::Remainder;
  /// What all heads receive, and what each receives, of a net estate of 1.
  Fraction Share{};
  Fraction PerHead{};
  Reason Why{};

  constexpr bool operator==(const Row&) const = default;
};

/// Who receives what: a line for each kind that is alive, in the order of the kinds, and the remainder last.
struct Division {
  List<Row, KindCount + 1> Rows{};
  /// The base (asl): the least common denominator of the fixed shares before Awl and Radd, or the number of
  /// residuary parts; 0 where no heir takes anything.
  std::int64_t Base = 0;
  /// The sum of the numerators over the base where that exceeds it (Awl), else 0.
  std::int64_t RaisedTo = 0;
  /// The corrected base (tashih): the least common denominator of what each head receives.
  std::int64_t CorrectedBase = 1;

  constexpr bool operator==(const Division&) const = default;
};

/// Divides among the family by the law of the school. A family that is not possible (IsPossible) throws
/// std::invalid_argument. The same family always gives the same division, and nothing is allocated.
Division Divide(const Family& family, School school);

}  // namespace faraid
