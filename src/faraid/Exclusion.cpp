#include "faraid/Exclusion.h"

namespace faraid {

namespace {

using enum Kind;

bool InEverySchool(const Survivors&) { return true; }

bool FathersExcludeGrandmothers(const Survivors& s) { return s.Law.FathersExcludeGrandmothers; }

bool FathersMotherExcludesMothersSide(const Survivors& s) {
  const bool excluded = s.Law.FathersExcludeGrandmothers && s.Has(Father);
  return s.Law.NearerOfFathersSideExcludes && (!excluded || s.Law.ExcludedNearerExcludes);
}

bool GrandfatherExcludesSiblings(const Survivors& s) { return !s.Law.GrandfatherSharesWithSiblings; }

/// A sister beside a brother of her own kind is residuary through him; then he excludes others, not she.
/// Beside a grandfather who shares with siblings she excludes nobody.
bool FullSisterIsResiduary(const Survivors& s) {
  return s.Has(FemaleDescendants) && !s.Has(FullBrothers) && !GrandfatherShares(s);
}
bool ConsanguineSisterIsResiduary(const Survivors& s) {
  return s.Has(FemaleDescendants) && !s.Has(ConsanguineBrothers);
}

struct ExclusionRow {
  KindSet Excluded;
  KindSet By;
  bool (*When)(const Survivors&);
  Source Basis;
};

// For each kind, the first row that applies names who excludes it. If several of a row are alive, it is the
// first in the order of the kinds.
constexpr ExclusionRow exclusionTable[] = {
    {SonsSons | SonsDaughters, Sons, InEverySchool, Source::Consensus},
    {SonsSonsSons | SonsSonsDaughters, Sons | SonsSons, InEverySchool, Source::Consensus},
    {Grandfather, Father, InEverySchool, Source::Consensus},
    {GreatGrandfather, Father | Grandfather, InEverySchool, Source::Consensus},

    {Grandmothers, Mother, InEverySchool, Source::Consensus},
    {GrandmothersOfFathersSide, Father, FathersExcludeGrandmothers, Source::Companions},
    {GrandfathersMother, Grandfather, FathersExcludeGrandmothers, Source::Companions},
    {MothersMothersMother | GrandfathersMother | FathersMothersMother, MothersMother, InEverySchool,
     Source::Companions},
    {GrandfathersMother | FathersMothersMother, FathersMother, InEverySchool, Source::Companions},
    {MothersMothersMother, FathersMother, FathersMotherExcludesMothersSide, Source::Companions},

    {SiblingsByFather, MaleDescendants | Father, InEverySchool, Source::Quran4_176},
    {SiblingsByFather, Grandfathers, GrandfatherExcludesSiblings, Source::RulingOfAbuBakr},
    {ConsanguineSiblings, FullBrothers, InEverySchool, Source::ReportOfAli},
    {ConsanguineSiblings, FullSisters, FullSisterIsResiduary, Source::ReportOfIbnMasud},
    {UterineSiblings, Descendants | Father | Grandfathers, InEverySchool, Source::Quran4_12},

    {ClassII, MaleDescendants | Father | Grandfathers | FullBrothers, InEverySchool,
     Source::ReportOfIbnAbbas},
    {ClassII, FullSisters, FullSisterIsResiduary, Source::ReportOfIbnMasud},
    {ClassII, ConsanguineSisters, ConsanguineSisterIsResiduary, Source::ReportOfIbnMasud},
    {ClassII, ConsanguineBrothers, InEverySchool, Source::ReportOfIbnAbbas},
    // Each is excluded by the first in the order of succession.
    {ClassII, ClassII, InEverySchool, Source::ReportOfIbnAbbas},
};

}  // namespace

Exclusions Exclude(const Survivors& survivors) {
  const KindSet heirs = survivors.Alive - survivors.Law.NotHeirs;
  Exclusions exclusions;
  for (const ExclusionRow& row : exclusionTable) {
    const KindSet by = row.By & survivors.Alive;
    const KindSet open = (row.Excluded & heirs) - exclusions.Excluded;
    if (by.IsEmpty() || open.IsEmpty() || !row.When(survivors)) continue;
    for (const Kind kind : open) {
      if (kind == by.First()) continue;
      exclusions.Excluded = exclusions.Excluded | kind;
      exclusions.Why[static_cast<std::size_t>(kind)] = {by.First(), row.Basis};
    }
  }
  return exclusions;
}

}  // namespace faraid
