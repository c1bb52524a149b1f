#include "residue/ResiduaryDistribution.h"

#include "aulradd/FindLCM.h"
#include "base/Dates.h"
#include "base/Text.h"
#include "case/Conditions.h"
#include "case/ResiduaryFlags.h"
#include "case/narratives/DistributionTexts.h"
#include "residue/ClassII.h"

// Who takes the residue is one long chain of tests: the first that holds writes the report and ends it, so
// that exactly one class of residuaries is served. A positive residue beside a male descendant stays in the
// first block; everybody else, and every other residue, goes through the second.
//
// Amounts are per head, though a line shows the group's count. In each step the amounts are stored first,
// then the fractions, then the text: where an Integer overflow ends the command, what was stored by then
// stands.

namespace qismora {

namespace {

std::string Text(Fraction fraction) { return Join(" ", fraction); }

/// One part of the residue's fraction, when it is divided into units.
Fraction UnitFraction(const CaseRecord& c, Integer units) { return {c.ResidueNum, units * c.ResidueDen}; }

/// Two such parts: a male counts two units.
Fraction DoubleFraction(const CaseRecord& c, Integer units) {
  return {2 * c.ResidueNum, units * c.ResidueDen};
}

Double TwiceResidue(const CaseRecord& c) { return c.Residue + c.Residue; }

/// The residue's own fraction, undivided.
std::string ResidueText(const CaseRecord& c) { return Text({c.ResidueNum, c.ResidueDen}); }

/// A line of the report: label and count, the amount of one head, the fraction.
std::string Line(const char* label, Integer count, Double amount, Fraction fraction) {
  return Join(label, count, ") = ", F(amount), Text(fraction));
}

std::string FatherLine(const CaseRecord& c) {
  return Join("FATHER(", c.Father, "/", c.GrandFather, "/", c.GtGrandFather, ") = ", F(c.FatherResidue));
}

void Report(CaseRecord& c, const std::string& text) { c.ResiduaryReport = Join(c.SummaryText, text); }

// --- Descendants -------------------------------------------------------------------------------------------

/// Stores the amounts of a son of the serving line and of the daughter beside him.
void DivideBetween(CaseRecord& c, Integer units) {
  c.SonAmount = TwiceResidue(c) / units;
  c.DaughterResidue = c.Residue / units;
}

void GiveToSonsAndDaughters(CaseRecord& c) {
  const Integer units = 2 * c.Sons + c.Daughters;
  DivideBetween(c, units);
  Report(c, Join(Line("SONS (", c.Sons, c.SonAmount, DoubleFraction(c, units)), CRLF,
                 Line("DAUGHTERS (", c.Daughters, c.DaughterResidue, UnitFraction(c, units)), CRLF, CRLF));
}

/// Sons of one line alone; the flag tells that they took the residue.
void GiveToMalesAlone(CaseRecord& c, const char* label, Integer males, ResiduaryFlag flag) {
  c.SonAmount = c.Residue / males;
  Report(c, Join(Line(label, males, c.SonAmount, UnitFraction(c, males)), CRLF, CRLF));
  c.Res(flag) = true;
}

void GiveToSonsSonsAndSonsDaughters(CaseRecord& c) {
  const Integer units = 2 * c.AsabaGrandSons + c.GrandDaughters;
  DivideBetween(c, units);
  Report(c, Join(Line("Son's son(", c.GrandSons, c.SonAmount, DoubleFraction(c, units)), CRLF,
                 Line("Son's Daughter (", c.GrandDaughters, c.DaughterResidue, UnitFraction(c, units)), CRLF,
                 CRLF));
}

void GiveToLowerSonsAndSonsDaughters(CaseRecord& c) {
  const Integer units = 2 * c.AsabaGtGrandSons + c.GrandDaughters;
  DivideBetween(c, units);
  Report(c, Join(Line("Son's Daughter (", c.GrandDaughters, c.DaughterResidue, UnitFraction(c, units)), CRLF,
                 Line("Son's Son's son(", c.GtGrandSons, c.SonAmount, DoubleFraction(c, units)), CRLF, CRLF));
}

void GiveToLowestLine(CaseRecord& c) {
  const Integer units = 2 * c.GtGrandSons + c.GtGrandDaughters;
  c.SonAmount = TwiceResidue(c) / units;
  const Fraction son = DoubleFraction(c, units);
  const Fraction daughter = {Integer(son.Num.Value() / 2), son.Den};
  Report(c, Join(Line("Son's son's son(", c.GtGrandSons, c.SonAmount, son), CRLF,
                 Line("Son_son daughter(", c.GtGrandDaughters, c.SonAmount / 2, daughter), CRLF));
}

/// A male descendant takes a positive residue, the nearest line first, each line's female partner beside him.
void GiveToDescendants(CaseRecord& c) {
  if (c.Res(SonsWithDaughters)) return GiveToSonsAndDaughters(c);
  if (c.Sons > 0) return GiveToMalesAlone(c, "SON(", c.Sons, SonsAlone);
  if (c.Res(SonsDaughterWithSonsSonBesideDaughters) || c.Res(SonsDaughterWithSonsSon)) {
    return GiveToSonsSonsAndSonsDaughters(c);
  }
  if (c.Res(SonsDaughterWithLowerSonsSon)) return GiveToLowerSonsAndSonsDaughters(c);
  if (c.GrandSons > 0) return GiveToMalesAlone(c, "SON'S SON(", c.GrandSons, SonsSonsAlone);
  if (c.Res(SonsSonsDaughterWithSonsSonsSon)) return GiveToLowestLine(c);
  if (c.Res(SonsSonsDaughterBesideSonsDaughter)) return;
  if (c.GtGrandSons > 0) return GiveToMalesAlone(c, "Son's son's son(", c.GtGrandSons, SonsSonsSonsAlone);
}

// --- Everybody else ----------------------------------------------------------------------------------------

void GiveToFather(CaseRecord& c) {
  c.FatherResidue = c.Residue;
  Report(c, Join(FatherLine(c), ResidueText(c), CRLF, CRLF));
}

/// The father as sharer and residuary. His total is right only where the residue stands over the common
/// denominator: its numerator is added as it stands.
void GiveToFatherBesideHisSixth(CaseRecord& c) {
  c.FatherResidue = c.Residue;
  if (c.AulRaddState == AulBesideResiduary) return;
  c.LcmCount = Integer(2);
  c.LcmNum(0) = Integer(1);
  c.LcmNum(1) = c.ResidueNum;
  c.LcmDen(0) = Integer(6);
  c.LcmDen(1) = c.ResidueDen;
  FindLCM(c);
  const Fraction total = {RoundTo<Integer>(c.LcmResult / 6 + c.ResidueNum), ToInteger(c.LcmResult)};
  Report(c, Join(FatherLine(c), CRLF, CRLF, "Father's Total = 1/6 + Residuary (Asaba') share", CRLF, TAB,
                 "  = ", F(c.FatherShare), " + ", F(c.FatherResidue), CRLF, TAB, "  = ",
                 F(c.FatherShare + c.FatherResidue), Text(total), CRLF));
}

void GiveToEqualSonsSons(CaseRecord& c) {
  const Integer units = 2 * c.AsabaGrandSons + c.GrandDaughters;
  c.SonsDaughterResidue = c.Residue / units;
  const Fraction daughter = UnitFraction(c, units);
  c.EqualSonsSonResidue = TwiceResidue(c) / units;
  const Fraction son = DoubleFraction(c, units);
  Report(c, Join(Line("Sons Daughter (", c.GrandDaughters, c.SonsDaughterResidue, daughter), CRLF,
                 Line("Equal Son's Son (", c.AsabaGrandSons, c.EqualSonsSonResidue, son), CRLF, CRLF));
}

/// The son's daughters beside son's sons, or else beside lower ones. The fraction of the lower son's son is
/// made with the count of the equal ones, though that is zero here.
void GiveToSonsDaughters(CaseRecord& c) {
  if (c.AsabaGrandSons > 0) return GiveToEqualSonsSons(c);
  if (c.AsabaGtGrandSons == 0) return;
  const Integer units = 2 * c.AsabaGtGrandSons + c.GrandDaughters;
  c.SonsDaughterResidue = c.Residue / units;
  const Fraction daughter = UnitFraction(c, units);
  c.LowerSonsSonResidue = TwiceResidue(c) / units;
  const Fraction son = DoubleFraction(c, 2 * c.AsabaGrandSons + c.GrandDaughters);
  Report(c, Join(Line("Sons Daughter (", c.GrandDaughters, c.SonsDaughterResidue, daughter), CRLF,
                 Line("Lower Son's Son (", c.AsabaGtGrandSons, c.LowerSonsSonResidue, son), CRLF, CRLF));
}

void GiveToFullSiblingsBesideDaughters(CaseRecord& c) {
  const Integer units = 2 * c.FullBrothers + c.FullSisters;
  c.ResidueUnit = c.Residue / units;
  const Fraction unit = UnitFraction(c, units);
  if (c.FullBrothers > 0 && c.FullSisters > 0) {
    c.FullBrotherResidue = 2 * c.ResidueUnit;
    c.FullSisterResidue = c.ResidueUnit;
    Report(c, Join(Line("Full Brother (", c.FullBrothers, c.FullBrotherResidue, DoubleFraction(c, units)),
                   CRLF, Line("Full Sister (", c.FullSisters, c.FullSisterResidue, unit), CRLF, CRLF));
  } else if (c.FullBrothers > 0 && c.FullSisters == 0) {
    c.FullBrotherResidue = 2 * c.ResidueUnit;
    Report(c, Join(Line("Full Brother (", c.FullBrothers, c.FullBrotherResidue, DoubleFraction(c, units)),
                   CRLF, CRLF));
  } else if (c.FullBrothers == 0) {
    c.FullSisterResidue = c.ResidueUnit;
    Report(c, Join(Line("Full Sister (", c.FullSisters, c.FullSisterResidue, unit), CRLF, CRLF));
  }
}

void GiveToFullSisters(CaseRecord& c) {
  c.FullSisterResidue = c.Residue / c.FullSisters;
  Report(c, Join(Line("Full Sister (", c.FullSisters, c.FullSisterResidue, UnitFraction(c, c.FullSisters)),
                 CRLF, CRLF));
}

void GiveToFullBrothersAndSisters(CaseRecord& c) {
  const Integer units = 2 * c.FullBrothers + c.FullSisters;
  c.FullSisterResidue = c.Residue / units;
  const Fraction sister = UnitFraction(c, units);
  c.FullBrotherResidue = 2 * c.FullSisterResidue;
  const Fraction brother = DoubleFraction(c, units);
  Report(c, Join(Line("Full Brother (", c.FullBrothers, c.FullBrotherResidue, brother), CRLF,
                 Line("Full Sister (", c.FullSisters, c.FullSisterResidue, sister), CRLF, CRLF));
}

void GiveToFullBrothers(CaseRecord& c) {
  c.FullBrotherResidue = c.Residue / c.FullBrothers;
  Report(c,
         Join(Line("Full Brother (", c.FullBrothers, c.FullBrotherResidue, UnitFraction(c, c.FullBrothers)),
              CRLF));
}

void ReportConsSiblings(CaseRecord& c, Fraction brother, Fraction sister) {
  Report(c, Join(Line("Cons. Brother (", c.ConsBrothers, c.ConsBrotherResidue, brother), CRLF,
                 Line("Cons. Sister (", c.ConsSisters, c.ConsSisterResidue, sister), CRLF, CRLF));
}

void GiveToConsSiblingsBesideDaughters(CaseRecord& c) {
  const Integer units = 2 * c.ConsBrothers + c.ConsSisters;
  c.ResidueUnit = c.Residue / units;
  c.ConsBrotherResidue = 2 * c.ResidueUnit;
  const Fraction brother = DoubleFraction(c, units);
  c.ConsSisterResidue = c.ResidueUnit;
  ReportConsSiblings(c, brother, UnitFraction(c, units));
}

void GiveToConsSisters(CaseRecord& c) {
  c.ConsSisterResidue = c.Residue / c.ConsSisters;
  Report(c, Join(Line("Cons. Sister (", c.ConsSisters, c.ConsSisterResidue, UnitFraction(c, c.ConsSisters)),
                 CRLF, CRLF));
}

void GiveToConsBrothersAndSisters(CaseRecord& c) {
  const Integer units = 2 * c.ConsBrothers + c.ConsSisters;
  c.ConsSisterResidue = c.Residue / units;
  const Fraction sister = UnitFraction(c, units);
  c.ConsBrotherResidue = 2 * c.ConsSisterResidue;
  ReportConsSiblings(c, DoubleFraction(c, units), sister);
}

void GiveToConsBrothers(CaseRecord& c) {
  c.ConsBrotherResidue = c.Residue / c.ConsBrothers;
  Report(c,
         Join(Line("Cons. Brother (", c.ConsBrothers, c.ConsBrotherResidue, UnitFraction(c, c.ConsBrothers)),
              CRLF));
}

void GiveToClassII(CaseRecord& c) {
  c.ClassIIResidue = c.Residue;
  NameClassIIHeir(c);
  Report(c, Join(c.ClassIIText, " = ", F(c.ClassIIResidue), ResidueText(c), " (For all)", CRLF));
}

/// The ultimate father, the son's daughters, the full and then the consanguine brothers and sisters, class
/// II, nobody. No test looks at the residue. A flag whose counts do not hold lets the chain go on.
void GiveToOthers(CaseRecord& c) {
  if (c.Res(FatherAsResiduary)) return GiveToFather(c);
  if (c.Res(FatherAsSharerAndResiduary)) return GiveToFatherBesideHisSixth(c);
  if (c.Res(SonsDaughterWithSonsSon) && c.GrandDaughters > 0) return GiveToSonsDaughters(c);
  if (c.Res(SonsDaughterWithSonsSonBesideDaughters) && c.GrandDaughters > 0) return GiveToEqualSonsSons(c);
  if (c.Res(FullSiblingsBesideDaughters) && (c.FullSisters > 0 || c.FullBrothers > 0)) {
    return GiveToFullSiblingsBesideDaughters(c);
  }
  if (c.Res(FullSisterBesideDaughters) && c.FullSisters > 0 && c.FullBrothers == 0)
    return GiveToFullSisters(c);
  if (c.Res(FullBrothersWithSisters) && c.FullSisters > 0 && c.FullBrothers > 0 && HasNoFemaleDescendant(c)) {
    return GiveToFullBrothersAndSisters(c);
  }
  if (c.Res(FullBrothersAlone) && c.FullSisters == 0 && c.FullBrothers > 0 && HasNoFemaleDescendant(c)) {
    return GiveToFullBrothers(c);
  }
  if (c.Res(ConsSiblingsBesideDaughters) && c.ConsSisters > 0 && c.ConsBrothers > 0) {
    return GiveToConsSiblingsBesideDaughters(c);
  }
  if (c.Res(ConsSisterBesideDaughters) && c.ConsSisters > 0 && c.ConsBrothers == 0)
    return GiveToConsSisters(c);
  if (c.Res(ConsBrothersWithSisters) && c.ConsSisters > 0 && c.ConsBrothers > 0 && HasNoFemaleDescendant(c)) {
    return GiveToConsBrothersAndSisters(c);
  }
  if (c.Res(ConsBrothersAlone) && c.ConsSisters == 0 && c.ConsBrothers > 0) return GiveToConsBrothers(c);
  if (c.Res(ClassIITicked)) return GiveToClassII(c);
  c.ResiduaryReport = NobodyTakesText;
}

}  // namespace

void ResiduaryDistribution(CaseRecord& c, CaseScreen& screen) {
  screen.Label2.Caption = c.ReportToFile ? "FULL REPORT OF SHARE CLAIMANTS" : "SHARES AS RESIDUARY (ASABA')";
  c.ResiduaryReport = "";
  if (c.Residue > 0 && HasMaleDescendant(c)) {
    GiveToDescendants(c);
  } else {
    GiveToOthers(c);
  }
  screen.Text3.Text = Join(c.ResiduaryReport, CRLF, CRLF, GeneratedBy(screen.World.Time.Now()), CRLF);
}

}  // namespace qismora
