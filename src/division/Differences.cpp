#include "division/Differences.h"

#include <algorithm>
#include <cmath>

namespace qismora {

/// A division and the answer of the commands, side by side.
struct Compared {
  const DivisionInput& Input;
  const OwnAnswer& Own;
  faraid::Settlement Settled;
  /// The division in Hanafi law, which the commands follow, and in the school that is asked for.
  faraid::Division Hanafi;
  faraid::Division Asked;
};

namespace {

using faraid::Division;
using faraid::Family;
using faraid::Kind;
using faraid::KindSet;
using enum faraid::Kind;

/// The largest number to which the commands can round an amount.
constexpr double largestLong = 2147483647;

const Family& FamilyOf(const Compared& c) { return c.Input.Family; }
bool Has(const Compared& c, KindSet kinds) { return FamilyOf(c).Alive().HasAny(kinds); }

const faraid::Row* RowOf(const Division& division, Kind kind) {
  const auto* row = std::ranges::find(division.Rows, kind, &faraid::Row::Heir);
  return row == division.Rows.end() ? nullptr : row;
}

faraid::Fraction ShareOf(const Division& division, Kind kind) {
  const faraid::Row* row = RowOf(division, kind);
  return row == nullptr ? faraid::Fraction() : row->Share;
}
faraid::Fraction PerHead(const Division& division, Kind kind) {
  const faraid::Row* row = RowOf(division, kind);
  return row == nullptr ? faraid::Fraction() : row->PerHead;
}

double PartOf(double amount, const faraid::Fraction& share) {
  return amount * static_cast<double>(share.Num()) / static_cast<double>(share.Den());
}

// --- The estate --------------------------------------------------------------------------------------------

bool HasComma(const Compared& c) { return c.Own.StopsAtComma; }

bool HasDecimalsThatAreRounded(const Compared& c) {
  const faraid::Estate& estate = c.Input.Estate;
  return estate.Funeral % 100 != 0 || estate.Debts % 100 != 0 || estate.Bequests % 100 != 0;
}

bool IsTooLargeToBeRead(const Compared& c) { return c.Own.Outcome == OwnOutcome::FigureRefused; }

bool IsNothingLeft(const Compared& c) { return c.Settled.Shortfall > 0; }

bool AreBequestsLimitedOtherwise(const Compared& c) {
  const bool refused =
      c.Own.Outcome == OwnOutcome::FigureRefused || c.Own.Outcome == OwnOutcome::EstateRefused;
  return !refused && !IsNothingLeft(c) && c.Settled.Bequests < c.Input.Estate.Bequests;
}

// --- No figures --------------------------------------------------------------------------------------------

bool HasNoFigures(const Compared& c) { return c.Own.Outcome == OwnOutcome::NoFigures && c.Own.NetEstate > 0; }

/// The division has a remainder only if a spouse or nobody is alive.
bool IsSpouseAlone(const Compared& c) {
  return HasNoFigures(c) && Has(c, faraid::Spouses) && ShareOf(c.Hanafi, Remainder) > 0;
}

bool FitsExactly(const Compared& c) { return HasNoFigures(c) && ShareOf(c.Hanafi, Remainder) == 0; }

bool IsThirdOfRemainder(const Division& division) {
  const faraid::Row* mother = RowOf(division, Mother);
  return mother != nullptr && mother->Why.Code == faraid::ReasonCode::Umariyyatan;
}

/// Before the mother takes a third of the remainder, the spouse's amount is rounded; here it is too large for
/// that.
bool IsSpousesAmountTooLarge(const Compared& c) {
  const faraid::Fraction share = ShareOf(c.Hanafi, Husband) + ShareOf(c.Hanafi, Wives);
  return c.Own.Outcome == OwnOutcome::Failed && IsThirdOfRemainder(c.Hanafi) &&
         std::nearbyint(PartOf(c.Own.NetEstate, share)) > largestLong;
}

bool IsFamilyTooLarge(const Compared& c) {
  return c.Own.Outcome == OwnOutcome::Failed && !IsSpousesAmountTooLarge(c);
}

// --- The law -----------------------------------------------------------------------------------------------

bool ConsanguineBrotherBesideDaughters(const Compared& c) {
  return Has(c, faraid::FemaleDescendants) && !Has(c, ConsanguineSisters) &&
         ShareOf(c.Hanafi, ConsanguineBrothers) > 0;
}

/// Son's daughters beside son's son's sons, without a nearer male descendant. The commands divide between
/// them two to one.
bool BesideLowestMan(const Compared& c) {
  return Has(c, SonsDaughters) && Has(c, SonsSonsSons) && !Has(c, Sons | SonsSons);
}

/// Fixed share and residue may happen to be two to one.
bool IsTwoToOne(const Compared& c) {
  return PerHead(c.Hanafi, SonsSonsSons) == faraid::Fraction(2) * PerHead(c.Hanafi, SonsDaughters);
}

bool SonsDaughtersLoseTheirShare(const Compared& c) {
  return BesideLowestMan(c) && !Has(c, Daughters | SonsSonsDaughters) && !IsTwoToOne(c);
}

bool SonsDaughtersLoseTheirSixth(const Compared& c) {
  return BesideLowestMan(c) && FamilyOf(c)[Daughters] == 1 && (Has(c, SonsSonsDaughters) || !IsTwoToOne(c));
}

bool SonsSonsDaughterLeftOut(const Compared& c) {
  return BesideLowestMan(c) && FamilyOf(c)[Daughters] >= 2 && ShareOf(c.Hanafi, SonsSonsDaughters) > 0;
}

bool SonsSonsDaughterBesideTwoDaughters(const Compared& c) {
  return FamilyOf(c)[Daughters] >= 2 && Has(c, SonsSonsDaughters) && !Has(c, SonsDaughters) &&
         !Has(c, faraid::MaleDescendants);
}

bool ConsanguineSisterTakesTwice(const Compared& c) {
  return FamilyOf(c)[FullSisters] == 1 && FamilyOf(c).Alive().HasAll(faraid::ConsanguineSiblings) &&
         !Has(c, faraid::Descendants | Father | faraid::Grandfathers | FullBrothers);
}

bool GreatGrandmothersBesideGrandfather(const Compared& c) {
  const bool reach = Has(c, Grandfather) && !Has(c, Father | Mother | MothersMother | FathersMother);
  return reach && (Has(c, MothersMothersMother) ? Has(c, GrandfathersMother) : Has(c, FathersMothersMother));
}

bool GrandfatherHasNoLine(const Compared& c) {
  return c.Own.Applied == Doctrine::AulApplied && !Has(c, Father) && Has(c, faraid::Grandfathers) &&
         Has(c, faraid::Descendants);
}

bool SchoolDiffers(const Compared& c) {
  return std::ranges::any_of(
      c.Asked.Rows, [&](const faraid::Row& row) { return row.Share != ShareOf(c.Hanafi, row.Heir); });
}

// First those of the estate, then those without figures, then those of the shares.
constexpr DifferenceKind kinds[] = {
    {Concern::Estate, "comma", HasComma,                         //
     "The commands read an amount only up to its first comma.",  //
     "what-is-typed-and-what-is-read"},
    {Concern::Estate, "rounded-figure", HasDecimalsThatAreRounded,
     "The commands round funeral expenses, debts and wills to whole numbers.",
     "what-is-typed-and-what-is-read"},
    {Concern::Estate, "figure-too-large", IsTooLargeToBeRead,
     "The commands refuse funeral expenses, debts and wills above 2,147,483,647.",  //
     "very-large-amounts"},
    {Concern::Estate, "nothing-left", IsNothingLeft,
     "Funeral expenses and debts exceed the estate. The commands refuse it, or divide a negative estate.",
     "negative-amounts"},
    {Concern::Estate, "bequest-limit", AreBequestsLimitedOtherwise,
     "The commands limit the wills to a third of the gross estate, as a whole number, and not to a third of "
     "what funeral expenses and debts leave.",
     "10-a-third-of-the-gross-estate"},

    {Concern::Figures, "spouse-alone", IsSpouseAlone,
     "No other heir is alive beside husband or wife. The commands show no figures.",
     "9-answers-without-figures"},
    {Concern::Figures, "exact-shares", FitsExactly,
     "The fixed shares use up the estate exactly. The commands show no figures.",
     "9-answers-without-figures"},
    {Concern::Figures, "spouse-amount-too-large", IsSpousesAmountTooLarge,
     "The estate is too large for the commands: they cannot round the spouse's amount and show no figures.",
     "very-large-amounts"},
    {Concern::Figures, "family-too-large", IsFamilyTooLarge,
     "The family is too large for the fractions of the commands: they show no final figures.",
     "very-large-families"},

    {Concern::Shares, "consanguine-brother-beside-daughters", ConsanguineBrotherBesideDaughters,
     "The commands give a consanguine brother beside daughters nothing, unless a consanguine sister is alive.",
     "1-a-consanguine-brother-without-sisters-beside-daughters"},
    {Concern::Shares, "sons-daughters-lose-share", SonsDaughtersLoseTheirShare,
     "The commands let son's daughters share with the son's son's son instead of taking their fixed share.",
     "2-sons-daughters-beside-a-sons-sons-son-no-daughter"},
    {Concern::Shares, "sons-daughters-lose-sixth", SonsDaughtersLoseTheirSixth,
     "The commands let son's daughters share with the son's son's son instead of taking their sixth. A son's "
     "son's daughter then takes nothing.",
     "3-one-daughter-a-sons-daughter-and-a-sons-sons-son"},
    {Concern::Shares, "sons-sons-daughter-left-out", SonsSonsDaughterLeftOut,
     "The commands leave the son's son's daughter out of the residue that she shares with her brother.",
     "4-a-sons-sons-daughter-left-out-of-the-residue"},
    {Concern::Shares, "sons-sons-daughter-beside-two-daughters", SonsSonsDaughterBesideTwoDaughters,
     "The commands give a son's son's daughter a sixth, though two daughters have taken the two thirds.",
     "5-two-daughters-and-a-sons-sons-daughter"},
    {Concern::Shares, "consanguine-sister-takes-twice", ConsanguineSisterTakesTwice,
     "The commands give a consanguine sister beside her brother and one full sister a sixth, and then her "
     "part of the residue.",
     "6-one-full-sister-with-consanguine-brothers-and-sisters"},
    {Concern::Shares, "great-grandmothers-beside-grandfather", GreatGrandmothersBesideGrandfather,
     "Beside a grandfather the commands give the sixth of the great grandmothers to nobody, or also to the "
     "grandfather's mother.",
     "7-great-grandmothers-beside-a-living-grandfather"},
    {Concern::Shares, "grandfather-has-no-line", GrandfatherHasNoLine,
     "The text of Aul has no line for a grandfather.", "8-a-grandfather-in-the-aul-text"},
    {Concern::Shares, "school", SchoolDiffers,
     "The commands follow Hanafi law, from which this school differs here.",
     "12-where-schools-and-countries-differ"},
};

// --- Comparing ---------------------------------------------------------------------------------------------

double InUnits(faraid::Hundredths amount) { return static_cast<double>(amount) / 100; }

/// The commands compute in floating point, which has no hundredths in large numbers.
bool EstateDiffers(const Compared& c) {
  if (c.Own.Outcome == OwnOutcome::FigureRefused || c.Own.Outcome == OwnOutcome::EstateRefused) return true;
  constexpr double halfHundredth = 0.005;
  constexpr double precision = 2.5e-16;
  const double tolerance = halfHundredth + precision * InUnits(c.Input.Estate.Gross);
  return std::abs(c.Own.NetEstate - InUnits(c.Settled.Net)) > tolerance;
}

/// Whether the heirs of the row have another part of the net estate in the commands than in the division.
bool ShareDiffers(const Compared& c, const faraid::Row& row) {
  if (row.Heir == Remainder) return false;
  constexpr double precision = 1e-9;
  double tolerance = precision * c.Own.NetEstate;
  // The spouse's amount is rounded by up to half a unit; the mother takes a third of what it leaves.
  if ((Mother | Father).Has(row.Heir) && IsThirdOfRemainder(c.Asked)) tolerance += 0.5 / 3;
  return std::abs(c.Own.Of(row.Heir).Together - PartOf(c.Own.NetEstate, row.Share)) > tolerance;
}

}  // namespace

std::span<const DifferenceKind> DifferenceKinds() { return kinds; }

Differences Compare(const DivisionInput& input, const OwnAnswer& own, faraid::School school) {
  Differences differences;
  if (!input.Unreadable.empty()) return differences;
  const Compared c = {.Input = input,
                      .Own = own,
                      .Settled = faraid::Settle(input.Estate),
                      .Hanafi = faraid::Divide(input.Family, faraid::School::Hanafi),
                      .Asked = faraid::Divide(input.Family, school)};
  const bool estateDiffers = EstateDiffers(c);
  const bool isDivided = c.Settled.Net > 0;
  bool sharesDiffer = false;
  for (const faraid::Row& row : c.Asked.Rows) {
    if (row.Heir == Remainder) continue;
    const bool shareDiffers = own.IsDecided() && own.NetEstate > 0 && ShareDiffers(c, row);
    const bool takes = (isDivided && row.Share > 0) || own.Of(row.Heir).Together != 0;
    const bool lineDiffers = shareDiffers || own.Outcome != OwnOutcome::Figures || estateDiffers;
    if (takes && lineDiffers) differences.Heirs = differences.Heirs | row.Heir;
    sharesDiffer = sharesDiffer || shareDiffers;
  }
  // A share against Hanafi law may agree with the law of another school; there it is no difference.
  const bool askShares =
      sharesDiffer || (school == faraid::School::Hanafi && own.IsDecided() && own.NetEstate > 0);
  for (const DifferenceKind& kind : kinds) {
    if (kind.Of == Concern::Estate && !estateDiffers) continue;
    if (kind.Of == Concern::Shares && !askShares) continue;
    if (kind.When(c)) differences.Kinds.Add(&kind);
  }
  return differences;
}

}  // namespace qismora
