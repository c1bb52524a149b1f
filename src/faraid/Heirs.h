#pragma once

#include "faraid/Family.h"
#include "faraid/School.h"

namespace faraid {

/// Who survives the deceased, before one school. The conditions of the law are asked of it by their names.
struct Survivors {
  Survivors(const Family& family, const SchoolLaw& law) : Counts(family), Law(law), Alive(family.Alive()) {}

  const Family& Counts;
  const SchoolLaw& Law;
  KindSet Alive;

  bool Has(KindSet kinds) const { return Alive.HasAny(kinds); }
  int Count(KindSet kinds) const {
    int count = 0;
    for (const Kind kind : kinds& Alive) count += Counts[kind];
    return count;
  }
};

/// The survivors and those of them who inherit or may inherit: heirs in this school whom nobody excludes.
struct Heirs : Survivors {
  Heirs(const Survivors& survivors, KindSet entitled) : Survivors(survivors), Entitled(entitled) {}

  KindSet Entitled;

  int CountEntitled(KindSet kinds) const { return Count(kinds & Entitled); }
};

/// The nearest grandfather stands beside siblings by the father and shares with them: there is neither father
/// nor male descendant. Rule of Zayd.
inline bool GrandfatherShares(const Survivors& s) {
  return s.Law.GrandfatherSharesWithSiblings && s.Has(Grandfathers) && s.Has(SiblingsByFather) &&
         !s.Has(MaleDescendants | Kind::Father);
}

// Conditions of the tables of the law.

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

/// Two or more heads survive, though they be excluded.
template <KindSet Kinds>
bool TwoOrMore(const Heirs& h) {
  return h.Count(Kinds) >= 2;
}

}  // namespace faraid
