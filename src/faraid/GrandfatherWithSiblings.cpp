#include "faraid/GrandfatherWithSiblings.h"

#include <algorithm>

namespace faraid {

namespace {

using enum Kind;

/// The husband has 1/2, the mother 1/3, and a single sister is the only sibling: a uterine one would reduce
/// the mother to 1/6, a descendant the husband to 1/4.
bool IsAkdariyya(const Heirs& h) {
  return h.Alive.HasAll(Husband | Mother) && h.Count(Siblings) == 1 &&
         h.Has(FullSisters | ConsanguineSisters) && !h.Has(Descendants);
}

/// Without the grandfather, two uterine siblings would have a third and these siblings, as residuaries,
/// nothing. He excludes the uterine siblings, so he takes that third (ruling of Malik). A full sister without
/// a brother would have a fixed share, so it does not apply to her.
bool IsMalikiyya(const Heirs& h) {
  const bool onlyResiduaries = h.Has(FullBrothers) || (h.Has(ConsanguineBrothers) && !h.Has(FullSisters));
  return h.Law.GrandfatherTakesForSiblings && h.Has(Husband) && h.Entitled.HasAny(Mother | Grandmothers) &&
         !h.Has(Descendants) && h.Count(UterineSiblings) >= 2 && onlyResiduaries;
}

/// A share that the grandfather may take.
struct Choice {
  Fraction Share;
  Standing As;
  ReasonCode Why;
};

/// The largest of these: sharing the remainder as a brother, a third of the remainder, a sixth of the whole.
/// Of equal ones the first. Without other sharers the third of the remainder is a third of the whole.
Choice BestBesideSiblings(const Fraction& asBrother, bool besideSharers, const Fraction& remainder) {
  Choice best = {asBrother, Standing::Residuary, ReasonCode::SharesAsBrother};
  const Choice others[] = {
      {Third * remainder, Standing::Sharer,
       besideSharers ? ReasonCode::ThirdOfRemainder : ReasonCode::MoreThanBrother},
      {Sixth, Standing::Sharer, ReasonCode::MoreThanBrother},
  };
  for (const Choice& choice : others) {
    if (choice.Share > best.Share) best = choice;
  }
  return best;
}

/// His part if he shares as a brother. All full and consanguine siblings count against him, including
/// consanguine ones who then take nothing (mu'adda): men two parts, women one.
Fraction PartAsBrother(const Heirs& h, KindSet grandfather, const Fraction& remainder) {
  const Allotment shared = {
      .Takers = grandfather | (h.Alive & SiblingsByFather), .Share = remainder, .Divided = Manner::TwoToOne};
  return SharePerHead(h, shared, grandfather.First());
}

/// What the grandfather takes outside al-Akdariyya. The first condition that holds decides.
Choice ShareOfGrandfather(const Heirs& h, KindSet grandfather, bool besideSharers,
                          const Fraction& remainder) {
  if (IsMalikiyya(h)) return {remainder, Standing::Residuary, ReasonCode::Malikiyya};
  if (remainder <= Sixth) return {Sixth, Standing::Sharer, ReasonCode::LeastOfGrandfather};
  return BestBesideSiblings(PartAsBrother(h, grandfather, remainder), besideSharers, remainder);
}

}  // namespace

Allotments ShareWithGrandfather(const Heirs& heirs, const Allotments& others) {
  const KindSet grandfather = heirs.Entitled & Grandfathers;
  const KindSet siblings = heirs.Entitled & SiblingsByFather;
  Allotments shares;
  if (IsAkdariyya(heirs)) {
    shares.Add(
        {.Takers = grandfather | siblings,
         .Share = Sixth + Half,
         .Divided = Manner::TwoToOne,
         .As = Standing::SharerAndResiduary,
         .Why = {.Code = ReasonCode::Akdariyya, .Basis = Source::RulingOfZayd, .Share = Sixth + Half}});
    return shares;
  }
  const Fraction remainder = 1 - Total(others);
  const Choice his = ShareOfGrandfather(heirs, grandfather, !others.IsEmpty(), remainder);
  const Source basis = his.Why == ReasonCode::Malikiyya ? Source::RulingOfMalik : Source::RulingOfZayd;
  shares.Add({.Takers = grandfather,
              .Share = his.Share,
              .As = his.As,
              .Why = {.Code = his.Why, .Basis = basis, .Share = his.Share}});
  shares.Add({.Takers = siblings,
              .Share = std::max(Fraction(0), remainder - his.Share),
              .Divided = Manner::FullSiblingsFirst,
              .As = Standing::Residuary,
              .Why = {.Basis = basis}});
  return shares;
}

Reason WhyBesideGrandfather(const Heirs& heirs, const Allotment& ofSiblings, Kind kind) {
  Reason why = ofSiblings.Why;
  if (!ofSiblings.Takers.HasAny(FullSiblings) || !ofSiblings.Takers.HasAny(ConsanguineSiblings)) {
    why.Code = ReasonCode::WhatGrandfatherLeaves;
  } else if (FullSiblings.Has(kind)) {
    why.Code = ReasonCode::FullSistersBeforeConsanguine;
    why.Share = MostOfFullSisters(heirs);
  } else {
    why.Code = ReasonCode::Muadda;
  }
  return why;
}

}  // namespace faraid
