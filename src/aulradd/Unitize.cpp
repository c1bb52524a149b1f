#include "aulradd/Unitize.h"

#include "aulradd/FindLCM.h"
#include "case/Heirs.h"

namespace qismora {

namespace {

/// The numerator of an active sharer over the common denominator. The product is a Long, the quotient is
/// rounded to an Integer.
Integer UnitsOf(const CaseRecord& c, int active) {
  return RoundTo<Integer>(ToLong(c.ActiveNum(active)) * c.LcmResult / Double(c.ActiveDen(active)));
}

void Unitize(CaseRecord& c) {
  c.LcmCount = Integer(0);
  c.ActiveCount = Integer(0);
  for (int slot = 0; slot < HeirCount; ++slot) {
    if (c.FractionNum(slot) <= 0) continue;
    const int active = static_cast<int>(c.ActiveCount.Value());
    c.ActiveHeir(active) = Integer(slot);
    c.ActiveCount += Integer(1);
    c.ActiveNum(active) = c.FractionNum(slot);
    c.ActiveDen(active) = c.FractionDen(slot);
    c.LcmNum(active) = c.FractionNum(slot);
    c.LcmDen(active) = c.FractionDen(slot);
    c.LcmCount += Integer(1);
  }
  FindLCM(c);
  c.UnitTotal = Integer(0);
  for (int k = 0; k < c.LcmCount; ++k) {
    c.UnitShare(k) = UnitsOf(c, k);
    c.UnitTotal += c.UnitShare(k);
  }
  c.QSharesNum = c.UnitTotal;
  c.QSharesDen = ToInteger(c.LcmResult);
  c.ResidueNum = ToInteger(c.LcmResult - ToLong(c.UnitTotal));
  c.ResidueDen = ToInteger(c.LcmResult);
}

/// The new denominator is the sum of all units: Aul, and Radd without a spouse.
void PutOverUnitTotal(CaseRecord& c) {
  for (int k = 0; k < c.LcmCount; ++k) {
    const int heir = static_cast<int>(c.ActiveHeir(k).Value());
    c.FractionNum(heir) = UnitsOf(c, k);
    c.FractionDen(heir) = c.UnitTotal;
  }
}

/// Radd beside a spouse, who is the first active heir and keeps the share. What the spouse leaves is divided
/// in proportion to the other shares. The spouse's scaled fraction goes to the wife's slot, even if it is the
/// husband's; his own slot keeps the plain fraction.
void DivideBesideSpouse(CaseRecord& c) {
  c.LcmCount -= Integer(1);
  for (int i = 0; i < c.LcmCount; ++i) {
    c.LcmNum(i) = c.ActiveNum(i + 1);
    c.LcmDen(i) = c.ActiveDen(i + 1);
  }
  FindLCM(c);
  for (int i = 0; i < c.LcmCount; ++i) {
    c.RaddUnit(i) = UnitsOf(c, i + 1);
    c.RaddUnitTotal += c.RaddUnit(i);
  }
  c.RaddNum = c.RaddUnitTotal;
  c.RaddDen = ToInteger(c.LcmResult);
  for (int k = 1; k <= c.LcmCount; ++k) {
    const int heir = static_cast<int>(c.ActiveHeir(k).Value());
    c.FractionNum(heir) = (c.ActiveDen(0) - c.ActiveNum(0)) * c.RaddUnit(k - 1);
    c.FractionDen(heir) = c.ActiveDen(0) * c.RaddUnitTotal;
  }
  c.FractionNum(WifeHeir) = c.ActiveNum(0) * c.RaddUnitTotal;
  c.FractionDen(WifeHeir) = c.ActiveDen(0) * c.RaddUnitTotal;
}

void Revise(CaseRecord& c) {
  if (ToLong(c.UnitTotal) > c.LcmResult) return PutOverUnitTotal(c);
  if (c.FractionNum(WifeHeir) == 0 && c.FractionNum(HusbandHeir) == 0) PutOverUnitTotal(c);
  c.RaddUnitTotal = Integer(0);
  if (c.FractionNum(WifeHeir) < 1 && c.FractionNum(HusbandHeir) < 1) return;
  DivideBesideSpouse(c);
}

}  // namespace

void UnitizeShares(CaseRecord& c, CaseScreen& screen) {
  try {
    Unitize(c);
  } catch (const Failure& failure) {
    if (failure.Number == Overflow) return;
    screen.Ports.Boxes.Inform(BoxStyle::Plain, "ERROR IN UNITIZING MODULE");
  }
}

void ReviseFractions(CaseRecord& c) {
  try {
    Revise(c);
  } catch (const Failure&) {
    return;
  }
}

}  // namespace qismora
