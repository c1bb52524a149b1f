#include "faraid/AwlAndRadd.h"

namespace faraid {

Allotments ApplyAwl(const Allotments& shares, std::int64_t base, std::int64_t raised) {
  Allotments reduced = shares;
  for (Allotment& allotment : reduced) {
    const Fraction parts = allotment.Share * base;
    allotment.Share = parts / raised;
    allotment.Why.Changed = Change::Awl;
    allotment.Why.After = {parts.Num(), raised};
  }
  return reduced;
}

Allotments ApplyRadd(const Allotments& shares) {
  Fraction ofSpouse;
  Fraction ofOthers;
  for (const Allotment& allotment : shares) {
    Fraction& sum = allotment.Takers.HasAny(Spouses) ? ofSpouse : ofOthers;
    sum = sum + allotment.Share;
  }
  Allotments increased = shares;
  for (Allotment& allotment : increased) {
    if (allotment.Takers.HasAny(Spouses)) continue;
    allotment.Share = allotment.Share * (1 - ofSpouse) / ofOthers;
    allotment.Why.Changed = Change::Radd;
    allotment.Why.After = {allotment.Share.Num(), allotment.Share.Den()};
  }
  return increased;
}

}  // namespace faraid
