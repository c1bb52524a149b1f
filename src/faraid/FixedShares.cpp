#include "faraid/FixedShares.h"

namespace faraid {

namespace {

using enum Kind;
using enum ReasonCode;
using enum Source;

bool BesideSharingGrandfather(const Heirs& h) { return GrandfatherShares(h); }

/// The husband, the mother or a grandmother, and two uterine siblings leave nothing to the full siblings,
/// among whom is a brother. They then share the third of the uterine siblings (second ruling of Umar).
bool IsMushtaraka(const Heirs& h) {
  return h.Law.FullSiblingsShareUterineThird && h.Has(Husband) && h.Entitled.HasAny(Mother | Grandmothers) &&
         h.Entitled.Has(FullBrothers) && h.CountEntitled(UterineSiblings) >= 2;
}

struct SharerRow {
  KindSet Takers;
  Fraction Share;
  Condition When;
  ReasonCode Why = Open;
  /// Whom the reason names.
  KindSet Named = Nobody;
  Source Basis = Source::None;
};

constexpr Fraction noShare;
constexpr Fraction thirdOfWhatHusbandLeaves = Third * (1 - Half);
constexpr Fraction thirdOfWhatWivesLeave = Third * (1 - Quarter);

// For each heir the first row that applies decides. Several kinds in one row take its share together. An heir
// with noShare is a residuary, or one whose two thirds others have taken.
constexpr SharerRow sharerTable[] = {
    {Husband, Quarter, Beside<Descendants>, BecauseOfDescendants, Descendants, Quran4_12},
    {Husband, Half, Always, WithoutDescendants, Nobody, Quran4_12},

    {Wives, Eighth, Beside<Descendants>, BecauseOfDescendants, Descendants, Quran4_12},
    {Wives, Quarter, Always, WithoutDescendants, Nobody, Quran4_12},

    {Daughters, noShare, Beside<Sons>},
    {Daughters, Half, One<Daughters>, OneWithoutSon, Nobody, Quran4_11},
    {Daughters, TwoThirds, Always, SeveralWithoutSon, Nobody, Quran4_11},

    {SonsDaughters, noShare, Beside<SonsSons>},
    {SonsDaughters, Sixth, One<Daughters>, CompletesTwoThirds, Daughters, ReportOfIbnMasud},
    {SonsDaughters, noShare, Beside<Daughters>},
    {SonsDaughters, Half, One<SonsDaughters>, OneInPlaceOf, Daughters, Quran4_11},
    {SonsDaughters, TwoThirds, Always, SeveralInPlaceOf, Daughters, Quran4_11},

    {SonsSonsDaughters, noShare, Beside<SonsSonsSons>},
    {SonsSonsDaughters, Sixth, One<Daughters | SonsDaughters>, CompletesTwoThirds, Daughters | SonsDaughters,
     ReportOfIbnMasud},
    {SonsSonsDaughters, noShare, Beside<Daughters | SonsDaughters>},
    {SonsSonsDaughters, Half, One<SonsSonsDaughters>, OneInPlaceOf, Daughters, Quran4_11},
    {SonsSonsDaughters, TwoThirds, Always, SeveralInPlaceOf, Daughters, Quran4_11},

    {Father, Sixth, Beside<Descendants>, BecauseOfDescendants, Descendants, Quran4_11},

    {Grandfathers, noShare, BesideSharingGrandfather},
    {Grandfathers, Sixth, Beside<Descendants>, InFathersPlace, Nobody, Consensus},

    {Mother, Sixth, Beside<Descendants>, BecauseOfDescendants, Descendants, Quran4_11},
    {Mother, Sixth, TwoOrMore<Siblings>, TwoOrMoreSiblings, Nobody, Quran4_11},
    {Mother, thirdOfWhatHusbandLeaves, BesideAll<Husband | Father>, Umariyyatan, Husband, RulingOfUmar},
    {Mother, thirdOfWhatWivesLeave, BesideAll<Wives | Father>, Umariyyatan, Wives, RulingOfUmar},
    {Mother, Third, Always, NeitherDescendantsNorSiblings, Nobody, Quran4_11},

    {Grandmothers, Sixth, One<Grandmothers>, OneGrandmother, Nobody, ReportsOfMughiraAndUbada},
    {Grandmothers, Sixth, Always, GrandmothersTogether, Nobody, ReportsOfMughiraAndUbada},

    {FullSiblings | UterineSiblings, Third, IsMushtaraka, Mushtaraka, Nobody, RulingOfUmar},

    {FullSisters, noShare, BesideSharingGrandfather},
    {FullSisters, noShare, Beside<FullBrothers | FemaleDescendants>},
    {FullSisters, Half, One<FullSisters>, OneWithoutBrother, Nobody, Quran4_176},
    {FullSisters, TwoThirds, Always, SeveralWithoutBrother, Nobody, Quran4_176},

    {ConsanguineSisters, noShare, BesideSharingGrandfather},
    {ConsanguineSisters, noShare, Beside<ConsanguineBrothers | FemaleDescendants>},
    // The verse names two thirds. That she completes them is consensus, by analogy with the son's daughter.
    {ConsanguineSisters, Sixth, One<FullSisters>, CompletesTwoThirds, FullSisters, Quran4_176},
    {ConsanguineSisters, noShare, Beside<FullSisters>},
    {ConsanguineSisters, Half, One<ConsanguineSisters>, OneInPlaceOf, FullSisters, Quran4_176},
    {ConsanguineSisters, TwoThirds, Always, SeveralInPlaceOf, FullSisters, Quran4_176},

    {UterineSiblings, Sixth, One<UterineSiblings>, OneUterine, Nobody, Quran4_12},
    {UterineSiblings, Third, Always, UterineTogether, Nobody, Quran4_12},
};

/// The heir whom the reason names: the first one alive of those it may name, or else the first.
Kind Named(const Heirs& heirs, KindSet named) {
  if (named.IsEmpty()) return Remainder;
  const KindSet alive = named & heirs.Alive;
  return alive.IsEmpty() ? named.First() : alive.First();
}

}  // namespace

Allotments FixedShares(const Heirs& heirs) {
  Allotments shares;
  KindSet open = heirs.Entitled;
  for (const SharerRow& row : sharerTable) {
    const KindSet takers = row.Takers & open;
    if (takers.IsEmpty() || !row.When(heirs)) continue;
    open = open - takers;
    if (row.Share == noShare) continue;
    shares.Add(
        {.Takers = takers,
         .Share = row.Share,
         .Why = {.Code = row.Why, .Basis = row.Basis, .Named = Named(heirs, row.Named), .Share = row.Share}});
  }
  return shares;
}

}  // namespace faraid
