#include "faraid/Allotment.h"

#include <algorithm>

namespace faraid {

namespace {

int PartsOfHead(KindSet takers, Kind kind) {
  const bool bothTake = takers.HasAny(Males) && !(takers - Males).IsEmpty();
  return bothTake && Males.Has(kind) ? 2 : 1;
}

Fraction TwoToOne(const Heirs& heirs, KindSet takers, const Fraction& share, Kind kind) {
  return share * Fraction(PartsOfHead(takers, kind), Parts(heirs, takers));
}

/// Beside a full brother the consanguine siblings are excluded, so they are not among the takers. Rule of
/// Zayd.
Fraction FullSiblingsFirst(const Heirs& heirs, const Allotment& allotment, Kind kind) {
  const KindSet full = allotment.Takers & FullSiblings;
  const KindSet consanguine = allotment.Takers & ConsanguineSiblings;
  if (full.IsEmpty() || consanguine.IsEmpty()) {
    return TwoToOne(heirs, allotment.Takers, allotment.Share, kind);
  }
  const Fraction ofFull = std::min(allotment.Share, MostOfFullSisters(heirs));
  if (full.Has(kind)) return TwoToOne(heirs, full, ofFull, kind);
  return TwoToOne(heirs, consanguine, allotment.Share - ofFull, kind);
}

}  // namespace

Fraction Total(const Allotments& allotments) {
  Fraction total;
  for (const Allotment& allotment : allotments) total = total + allotment.Share;
  return total;
}

int Parts(const Survivors& survivors, KindSet takers) {
  int parts = 0;
  for (const Kind kind : takers) parts += survivors.Counts[kind] * PartsOfHead(takers, kind);
  return parts;
}

Fraction MostOfFullSisters(const Survivors& survivors) {
  return survivors.Count(Kind::FullSisters) == 1 ? Half : TwoThirds;
}

Fraction SharePerHead(const Heirs& heirs, const Allotment& allotment, Kind kind) {
  switch (allotment.Divided) {
    case Manner::Alike:
      return allotment.Share * Fraction(1, heirs.Count(allotment.Takers));
    case Manner::TwoToOne:
      return TwoToOne(heirs, allotment.Takers, allotment.Share, kind);
    case Manner::FullSiblingsFirst:
      return FullSiblingsFirst(heirs, allotment, kind);
  }
  return {};
}

}  // namespace faraid
