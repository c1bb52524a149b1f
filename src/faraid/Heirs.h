#pragma once

#include "faraid/Family.h"
#include "faraid/School.h"

namespace faraid {

/// Who survives the deceased, and the law of the school that divides. The tables ask it for their conditions.
struct Survivors {
  Survivors(const Family& family, const SchoolLaw& law) : Counts(family), Law(law), Alive(family.Alive()) {}

  const Family& Counts;
  const SchoolLaw& Law;
  KindSet Alive;

  bool Has(KindSet kinds) const { return Alive.HasAny(kinds); }
  int Count(KindSet kinds) const {
    int count = 0;
    for (const Kind kind : Alive& kinds) count += Counts[kind];
    return count;
  }
};

/// The survivors, and those of them who are entitled: heirs in this school whom nobody excludes.
struct Heirs : Survivors {
  Heirs(const Survivors& survivors, KindSet entitled) : Survivors(survivors), Entitled(entitled) {}

  KindSet Entitled;

  int CountEntitled(KindSet kinds) const { return Count(kinds & Entitled); }
};

/// Whether a grandfather shares with full or consanguine siblings: there is neither a father nor a male
/// descendant (rule of Zayd).
inline bool GrandfatherShares(const Survivors& s) {
  return s.Law.GrandfatherSharesWithSiblings && s.Has(Grandfathers) && s.Has(SiblingsByFather) &&
         !s.Has(MaleDescendants | Kind::Father);
}

// Conditions for the rows of the tables.

using Condition = bool (*)(const Heirs&);

inline bool Always(const Heirs&) { return true; }

/// One of these survives.
template <KindSet Any>
bool Beside(const Heirs& h) {
  return h.Has(Any);
}

/// All of these survive.
template <KindSet All>
bool BesideAll(const Heirs& h) {
  return h.Alive.HasAll(All);
}

/// Exactly one head of these inherits.
template <KindSet Kinds>
bool One(const Heirs& h) {
  return h.CountEntitled(Kinds) == 1;
}

/// Two or more heads survive, even if they are excluded.
template <KindSet Kinds>
bool TwoOrMore(const Heirs& h) {
  return h.Count(Kinds) >= 2;
}

}  // namespace faraid
