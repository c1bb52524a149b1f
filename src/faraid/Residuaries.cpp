#include "faraid/Residuaries.h"

namespace faraid {

namespace {

using enum Kind;

struct ResiduaryRow {
  KindSet Men;
  KindSet Women;
  Condition When;
  Source Basis;
};

// The first row that applies takes all that is left. A row that names men needs one of them; its women
// without a fixed share take with him. In a row without men the women take alone.
constexpr ResiduaryRow residuaryTable[] = {
    {Sons, Daughters, Always, Source::Quran4_11},
    {SonsSons, SonsDaughters, Always, Source::Quran4_11},
    // He also makes son's daughters above him residuaries, if they would otherwise have nothing.
    {SonsSonsSons, SonsDaughters | SonsSonsDaughters, Always, Source::Quran4_11},
    {Father, Nobody, Always, Source::Quran4_11},
    {Grandfathers, Nobody, Always, Source::Consensus},
    {FullBrothers, FullSisters, Always, Source::Quran4_176},
    {Nobody, FullSisters, Beside<FemaleDescendants>, Source::ReportOfIbnMasud},
    {ConsanguineBrothers, ConsanguineSisters, Always, Source::Quran4_176},
    {Nobody, ConsanguineSisters, Beside<FemaleDescendants>, Source::ReportOfIbnMasud},
    {ClassII, Nobody, Always, Source::ReportOfIbnAbbas},
};

constexpr KindSet bothSharerAndResiduary = Father | Grandfathers;

}  // namespace

Allotment Residuaries(const Heirs& heirs, KindSet sharers, const Fraction& residue) {
  const KindSet free = heirs.Entitled - (sharers - bothSharerAndResiduary);
  for (const ResiduaryRow& row : residuaryTable) {
    const KindSet leaders = row.Men.IsEmpty() ? row.Women : row.Men;
    if (!free.HasAny(leaders) || !row.When(heirs)) continue;
    return {.Takers = free & (row.Men | row.Women),
            .Share = residue,
            .Divided = Manner::TwoToOne,
            .As = Standing::Residuary,
            .Why = {.Basis = row.Basis, .Share = residue}};
  }
  return {};
}

Reason WhyResiduary(const Heirs& heirs, const Allotment& residue, Kind kind) {
  const KindSet men = residue.Takers & Males;
  const KindSet women = residue.Takers - Males;
  Reason why = residue.Why;
  if (women.IsEmpty()) {
    why.Code = ReasonCode::NearestMale;
  } else if (men.IsEmpty()) {
    why.Code = ReasonCode::SisterBesideDescendants;
    why.Named = (FemaleDescendants & heirs.Alive).First();
  } else if (men.Has(kind)) {
    why.Code = ReasonCode::TwoPartsBeside;
    why.Named = women.First();
  } else {
    why.Code = ReasonCode::OnePartBeside;
    why.Named = men.First();
  }
  return why;
}

}  // namespace faraid
