#pragma once

#include "case/Heirs.h"

namespace qismora {

// Who is alive, in the words of the law.

/// One of them is the ultimate father.
inline bool HasMaleAscendant(const CaseRecord& c) {
  return c.Father > 0 || c.GrandFather > 0 || c.GtGrandFather > 0;
}

/// A son, a son's son or a son's son's son.
inline bool HasMaleDescendant(const CaseRecord& c) {
  return c.Sons > 0 || c.GrandSons > 0 || c.GtGrandSons > 0;
}

/// A daughter, a son's daughter or a son's son's daughter.
inline bool HasFemaleDescendant(const CaseRecord& c) {
  return c.Daughters > 0 || c.GrandDaughters > 0 || c.GtGrandDaughters > 0;
}

inline bool HasDescendant(const CaseRecord& c) { return HasMaleDescendant(c) || HasFemaleDescendant(c); }

/// A grandmother or great grandmother of either side.
inline bool HasGrandMother(const CaseRecord& c) {
  return c.FathersMother > 0 || c.GrandFathersMother > 0 || c.FathersGrandMother > 0 || c.MothersMother > 0 ||
         c.MothersMothersMother > 0;
}

/// One of the kind, any male ascendant for the ultimate father and any grandmother for the group.
inline bool IsAlive(const CaseRecord& c, HeirKind heir) {
  if (heir == FatherHeir) return HasMaleAscendant(c);
  if (heir == GrandMotherHeir) return HasGrandMother(c);
  return c.*Heirs[heir].Count > 0;
}

// Exactly none. A refused count stays in the record and may be negative: that is neither none here nor alive
// above.

inline bool HasNoMaleDescendant(const CaseRecord& c) {
  return c.Sons == 0 && c.GrandSons == 0 && c.GtGrandSons == 0;
}

inline bool HasNoFemaleDescendant(const CaseRecord& c) {
  return c.Daughters == 0 && c.GrandDaughters == 0 && c.GtGrandDaughters == 0;
}

}  // namespace qismora
