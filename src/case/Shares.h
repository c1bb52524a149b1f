#pragma once

#include <string>

#include "base/Text.h"
#include "case/CaseRecord.h"

namespace qismora {

/// Stores an heir's fraction of the estate, as the rule gives it and never reduced.
inline void SetFraction(CaseRecord& c, Slot slot, Integer numerator, Integer denominator) {
  c.FractionNum(slot) = numerator;
  c.FractionDen(slot) = denominator;
}
inline void SetFraction(CaseRecord& c, Slot slot, int numerator, int denominator) {
  SetFraction(c, slot, Integer(numerator), Integer(denominator));
}

/// Two blanks and the heir's fraction in brackets.
inline std::string FractionText(const CaseRecord& c, Slot slot) {
  return Join("  (", c.FractionNum(slot), "/", c.FractionDen(slot), ")");
}

/// The amount line of the result panel: the amount and the fraction.
inline std::string AmountLine(const CaseRecord& c, Double amount, Slot slot) {
  return F(amount) + FractionText(c, slot);
}

/// A flag as a text reads as the word True or False.
inline const char* FlagText(bool flag) { return flag ? "True" : "False"; }

}  // namespace qismora
