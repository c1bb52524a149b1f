#include "faraid/Division.h"

#include <algorithm>
#include <numeric>
#include <stdexcept>

#include "faraid/AwlAndRadd.h"
#include "faraid/Exclusion.h"
#include "faraid/FixedShares.h"
#include "faraid/GrandfatherWithSiblings.h"
#include "faraid/Residuaries.h"

namespace faraid {

namespace {

/// The shares before Awl and Radd, and who divides what they leave.
struct Claims {
  Allotments Shares;
  Allotment Residue{};
};

Claims ClaimsOf(const Heirs& heirs) {
  Claims claims = {.Shares = FixedShares(heirs)};
  if (GrandfatherShares(heirs)) {
    for (const Allotment& share : ShareWithGrandfather(heirs, claims.Shares)) claims.Shares.Add(share);
    return claims;
  }
  KindSet sharers;
  for (const Allotment& share : claims.Shares) sharers = sharers | share.Takers;
  claims.Residue = Residuaries(heirs, sharers, std::max(Fraction(0), 1 - Total(claims.Shares)));
  return claims;
}

/// The base (asl). Heirs who take a share together, such as the grandmothers or the uterine siblings, count
/// as one allotment.
std::int64_t BaseOf(const Heirs& heirs, const Claims& claims) {
  if (claims.Shares.IsEmpty()) return Parts(heirs, claims.Residue.Takers);
  std::int64_t base = 1;
  for (const Allotment& share : claims.Shares) base = std::lcm(base, share.Share.Den());
  return base;
}

/// The reason of one of the kinds that take an allotment.
Reason WhyOf(const Heirs& heirs, const Allotment& allotment, Kind kind) {
  if (allotment.Why.Code != ReasonCode::Open) return allotment.Why;
  return allotment.Divided == Manner::FullSiblingsFirst ? WhyBesideGrandfather(heirs, allotment, kind)
                                                        : WhyResiduary(heirs, allotment, kind);
}

Reason WhyNothingIsLeft(const Allotment& allotment) {
  const bool besideGrandfather = allotment.Divided == Manner::FullSiblingsFirst;
  return {.Code = ReasonCode::NothingIsLeft,
          .Basis = besideGrandfather ? allotment.Why.Basis : Source::ReportOfIbnAbbas};
}

/// Female descendants and consanguine sisters whose two thirds others have taken, and whom no man makes
/// residuary.
Reason WhyTwoThirdsAreTaken(Kind kind) {
  return {.Code = ReasonCode::TwoThirdsAreTaken,
          .Basis = FemaleDescendants.Has(kind) ? Source::Quran4_11 : Source::Quran4_176};
}

/// The line of an heir who is not excluded.
Row RowOfEntitled(const Heirs& heirs, const Claims& claims, Kind kind) {
  Row row = {.Heir = kind, .Heads = heirs.Counts[kind]};
  const auto* share =
      std::ranges::find_if(claims.Shares, [&](const Allotment& s) { return s.Takers.Has(kind); });
  const bool isSharer = share != claims.Shares.end();
  const bool isResiduary = claims.Residue.Takers.Has(kind);
  if (!isSharer && !isResiduary) {
    row.As = Standing::TwoThirdsTaken;
    row.Why = WhyTwoThirdsAreTaken(kind);
    return row;
  }
  const Allotment& first = isSharer ? *share : claims.Residue;
  row.PerHead = SharePerHead(heirs, first, kind);
  if (row.PerHead == 0) {
    row.As = Standing::NothingLeft;
    row.Why = WhyNothingIsLeft(first);
    return row;
  }
  row.As = first.As;
  row.Why = WhyOf(heirs, first, kind);
  if (isSharer && isResiduary) {
    row.PerHead = row.PerHead + claims.Residue.Share;
    row.As = Standing::SharerAndResiduary;
    row.Why.Sixth = claims.Residue.Share > 0 ? Beyond::TheResidue : Beyond::Nothing;
  }
  row.Share = row.PerHead * row.Heads;
  return row;
}

Row RowOf(const Heirs& heirs, const Exclusions& exclusions, const Claims& claims, Kind kind) {
  if (heirs.Entitled.Has(kind)) return RowOfEntitled(heirs, claims, kind);
  Row row = {.Heir = kind, .Heads = heirs.Counts[kind]};
  if (heirs.Law.NotHeirs.Has(kind)) {
    row.As = Standing::NotAnHeir;
    row.Why = {.Code = ReasonCode::NotAnHeir, .Basis = Source::RulingOfMalik};
    return row;
  }
  const Exclusion& exclusion = exclusions.Why[static_cast<std::size_t>(kind)];
  row.As = Standing::Excluded;
  row.Excluder = exclusion.By;
  row.Why = {.Code = ReasonCode::ExcludedBy, .Basis = exclusion.Basis, .Named = exclusion.By};
  return row;
}

Row RemainderOf(const Heirs& heirs, const Fraction& rest) {
  const ReasonCode code =
      heirs.Has(Spouses) ? heirs.Law.RemainderBesideSpouse : ReasonCode::KindredThenTreasury;
  return {.Heads = 1, .Share = rest, .PerHead = rest, .Why = {.Code = code, .Basis = Source::Quran8_75}};
}

}  // namespace

Division Divide(const Family& family, School school) {
  if (!IsPossible(family)) throw std::invalid_argument("no family has such heirs");
  const Survivors survivors(family, LawOf(school));
  const Exclusions exclusions = Exclude(survivors);
  const Heirs heirs(survivors, survivors.Alive - survivors.Law.NotHeirs - exclusions.Excluded);

  Claims claims = ClaimsOf(heirs);
  Division division = {.Base = BaseOf(heirs, claims)};
  const Fraction total = Total(claims.Shares) + claims.Residue.Share;
  if (total > 1) {
    division.RaisedTo = (total * division.Base).Num();
    claims.Shares = ApplyAwl(claims.Shares, division.Base, division.RaisedTo);
  } else if (total < 1) {
    claims.Shares = ApplyRadd(claims.Shares);
  }

  for (const Kind kind : heirs.Alive) division.Rows.Add(RowOf(heirs, exclusions, claims, kind));
  const Fraction rest = 1 - Total(claims.Shares) - claims.Residue.Share;
  if (rest > 0) division.Rows.Add(RemainderOf(heirs, rest));
  for (const Row& row : division.Rows) {
    division.CorrectedBase = std::lcm(division.CorrectedBase, row.PerHead.Den());
  }
  return division;
}

}  // namespace faraid
