#pragma once

#include <string>

#include "base/Text.h"
#include "case/CaseScreen.h"
#include "case/Heirs.h"
#include "case/ResiduaryFlags.h"

namespace qismora {

/// Stores an heir's fraction of the estate, as the rule gives it and never reduced.
inline void SetFraction(CaseRecord& c, HeirKind heir, Integer numerator, Integer denominator) {
  c.FractionNum(heir) = numerator;
  c.FractionDen(heir) = denominator;
}

/// Gives the heir this part of the net estate: amount and fraction. Throws Failure(DivisionByZero)
/// for a denominator of 0, Failure(Overflow) for an amount beyond the range of a Double.
inline void Take(CaseRecord& c, HeirKind heir, Integer numerator, Integer denominator) {
  c.*Heirs[heir].Amount = numerator * c.NetEstate / denominator;
  SetFraction(c, heir, numerator, denominator);
}
inline void Take(CaseRecord& c, HeirKind heir, int numerator, int denominator) {
  Take(c, heir, Integer(numerator), Integer(denominator));
}

/// No share: the amount 0 and the fraction 0/1.
inline void TakeNothing(CaseRecord& c, HeirKind heir) {
  c.*Heirs[heir].Amount = 0;
  SetFraction(c, heir, Integer(0), Integer(1));
}

/// Marks the way in which the heir is a residuary. The fraction is 0/1; the amount stays as it was, which is
/// 0 after ClearResults.
inline void BecomeResiduary(CaseRecord& c, HeirKind heir, ResiduaryFlag flag) {
  SetFraction(c, heir, Integer(0), Integer(1));
  c.Res(flag) = true;
}

/// Writes the heir's narrative.
template <class... Pieces>
void Report(CaseRecord& c, HeirKind heir, const Pieces&... pieces) {
  Write(c.*Heirs[heir].Report, pieces...);
}

inline Fraction FractionOf(const CaseRecord& c, HeirKind heir) {
  return {c.FractionNum(heir), c.FractionDen(heir)};
}

/// The heir's amount and fraction.
inline std::string AmountLine(const CaseRecord& c, HeirKind heir) {
  return F(c.*Heirs[heir].Amount, FractionOf(c, heir));
}

/// Ends a rule: a narrative and the heir's amount line on the result panel.
inline void ShowResult(const CaseRecord& c, CaseScreen& screen, HeirKind heir, const std::string& narrative) {
  screen.Text2.Text = narrative;
  screen.Label3.Caption = AmountLine(c, heir);
}
/// The same with the heir's report as the narrative.
inline void ShowResult(const CaseRecord& c, CaseScreen& screen, HeirKind heir) {
  ShowResult(c, screen, heir, c.*Heirs[heir].Report);
}

}  // namespace qismora
