#pragma once

#include "case/CaseRecord.h"

namespace qismora {

// Who lives, in the words of the law.

/// A man of the father line: one of them is the ultimate father.
inline bool HasFatherLine(const CaseRecord& c) {
  return c.Father > 0 || c.GrandFather > 0 || c.GtGrandFather > 0;
}

/// A son of any line.
inline bool HasSonsLine(const CaseRecord& c) { return c.Sons > 0 || c.GrandSons > 0 || c.GtGrandSons > 0; }

/// A daughter of any line.
inline bool HasDaughtersLine(const CaseRecord& c) {
  return c.Daughters > 0 || c.GrandDaughters > 0 || c.GtGrandDaughters > 0;
}

inline bool HasDescendant(const CaseRecord& c) { return HasSonsLine(c) || HasDaughtersLine(c); }

/// A grandmother or great grandmother of either side.
inline bool HasGrandMother(const CaseRecord& c) {
  return c.FathersMother > 0 || c.GrandFathersMother > 0 || c.FathersGrandMother > 0 || c.MothersMother > 0 ||
         c.MothersMothersMother > 0;
}

// Exactly none. After a refused count a field may be negative, which is neither one nor none.

inline bool HasNoSonsLine(const CaseRecord& c) {
  return c.Sons == 0 && c.GrandSons == 0 && c.GtGrandSons == 0;
}

inline bool HasNoDaughtersLine(const CaseRecord& c) {
  return c.Daughters == 0 && c.GrandDaughters == 0 && c.GtGrandDaughters == 0;
}

}  // namespace qismora
