#include "residue/ResiduaryDistribution.h"

#include "aulradd/FindLCM.h"
#include "base/Dates.h"
#include "base/Text.h"
#include "case/Conditions.h"
#include "case/ResiduaryFlags.h"
#include "case/narratives/DistributionTexts.h"
#include "residue/ClassII.h"

// One long chain of tests decides who takes the residue. The first test that holds writes the report and ends
// the chain, so exactly one class of residuaries takes. Beside a male descendant a positive residue goes
// through the first block (GiveToDescendants), everything else through the second (GiveToOthers).
//
// Amounts are per head, though a line shows the count of the group. Each step stores the amounts first, then
// makes the fractions, then writes the text. If an Integer overflow ends the command, what is stored by then
// stays.

namespace qismora {

namespace {

/// The fraction of one unit, if the residue is divided into this many units.
Fraction UnitFraction(const CaseRecord& c, Integer units) { return {c.ResidueNum, units * c.ResidueDen}; }

/// The fraction of two units, which a male takes.
Fraction DoubleFraction(const CaseRecord& c, Integer units) {
  return {2 * c.ResidueNum, units * c.ResidueDen};
}

Double TwiceResidue(const CaseRecord& c) { return c.Residue + c.Residue; }

/// The fraction of the whole residue.
Fraction ResidueFraction(const CaseRecord& c) { return {c.ResidueNum, c.ResidueDen}; }

/// A line of the report: label and count, the amount of one head, the fraction.
std::string Line(const char* label, Integer count, Double amount, Fraction fraction) {
  return Join(label, count, ") = ", F(amount), " ", fraction);
}

std::string FatherLine(const CaseRecord& c) {
  return Join("FATHER(", c.Father, "/", c.GrandFather, "/", c.GtGrandFather, ") = ", F(c.FatherResidue));
}

/// The distribution of the sharers, followed by what the residuaries take.
template <class... Pieces>
void WriteReport(CaseRecord& c, const Pieces&... pieces) {
  Write(c.ResiduaryReport, c.SummaryText, pieces...);
}

constexpr std::string_view twoLineBreaks = "\r\n\r\n";

/// Heirs of one kind alone.
void GiveToOneKind(CaseRecord& c, const char* label, Integer heads, Double CaseRecord::*amount,
                   std::string_view end) {
  c.*amount = c.Residue / heads;
  WriteReport(c, Line(label, heads, c.*amount, UnitFraction(c, heads)), end);
}

// --- Descendants -------------------------------------------------------------------------------------------

/// Stores the amounts of one male descendant and of one female beside him.
void StoreSonAndDaughter(CaseRecord& c, Integer units) {
  c.SonAmount = TwiceResidue(c) / units;
  c.DaughterResidue = c.Residue / units;
}

void GiveToSonsAndDaughters(CaseRecord& c) {
  const Integer units = 2 * c.Sons + c.Daughters;
  StoreSonAndDaughter(c, units);
  WriteReport(c, Line("SONS (", c.Sons, c.SonAmount, DoubleFraction(c, units)), CRLF,
              Line("DAUGHTERS (", c.Daughters, c.DaughterResidue, UnitFraction(c, units)), twoLineBreaks);
}

/// Males of one generation alone; the flag says that they took the residue.
void GiveToMalesAlone(CaseRecord& c, const char* label, Integer males, ResiduaryFlag flag) {
  GiveToOneKind(c, label, males, &CaseRecord::SonAmount, twoLineBreaks);
  c.Res(flag) = true;
}

void GiveToSonsSonsAndSonsDaughters(CaseRecord& c) {
  const Integer units = 2 * c.AsabaGrandSons + c.GrandDaughters;
  StoreSonAndDaughter(c, units);
  WriteReport(c, Line("Son's son(", c.GrandSons, c.SonAmount, DoubleFraction(c, units)), CRLF,
              Line("Son's Daughter (", c.GrandDaughters, c.DaughterResidue, UnitFraction(c, units)),
              twoLineBreaks);
}

void GiveToLowerSonsSonsAndSonsDaughters(CaseRecord& c) {
  const Integer units = 2 * c.AsabaGtGrandSons + c.GrandDaughters;
  StoreSonAndDaughter(c, units);
  WriteReport(c, Line("Son's Daughter (", c.GrandDaughters, c.DaughterResidue, UnitFraction(c, units)), CRLF,
              Line("Son's Son's son(", c.GtGrandSons, c.SonAmount, DoubleFraction(c, units)), twoLineBreaks);
}

void GiveToGreatGrandChildren(CaseRecord& c) {
  const Integer units = 2 * c.GtGrandSons + c.GtGrandDaughters;
  c.SonAmount = TwiceResidue(c) / units;
  const Fraction son = DoubleFraction(c, units);
  const Fraction daughter = {Integer(son.Num.Value() / 2), son.Den};
  WriteReport(c, Line("Son's son's son(", c.GtGrandSons, c.SonAmount, son), CRLF,
              Line("Son_son daughter(", c.GtGrandDaughters, c.SonAmount / 2, daughter), CRLF);
}

/// Male descendants take a positive residue, the nearest generation first, together with the females whom
/// they make residuaries (Quran 4:11).
void GiveToDescendants(CaseRecord& c) {
  if (c.Res(SonsWithDaughters)) return GiveToSonsAndDaughters(c);
  if (c.Sons > 0) return GiveToMalesAlone(c, "SON(", c.Sons, SonsAlone);
  if (c.Res(SonsDaughterWithSonsSonBesideDaughters) || c.Res(SonsDaughterWithSonsSon)) {
    return GiveToSonsSonsAndSonsDaughters(c);
  }
  if (c.Res(SonsDaughterWithLowerSonsSon)) return GiveToLowerSonsSonsAndSonsDaughters(c);
  if (c.GrandSons > 0) return GiveToMalesAlone(c, "SON'S SON(", c.GrandSons, SonsSonsAlone);
  if (c.Res(SonsSonsDaughterWithSonsSonsSon)) return GiveToGreatGrandChildren(c);
  if (c.Res(SonsSonsDaughterBesideSonsDaughter)) return;
  if (c.GtGrandSons > 0) return GiveToMalesAlone(c, "Son's son's son(", c.GtGrandSons, SonsSonsSonsAlone);
}

// --- Everybody else ----------------------------------------------------------------------------------------

void GiveToFather(CaseRecord& c) {
  c.FatherResidue = c.Residue;
  WriteReport(c, FatherLine(c), " ", ResidueFraction(c), twoLineBreaks);
}

/// The father as sharer and residuary. His total fraction is right only if the residue has the common
/// denominator already: its numerator is added without scaling.
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
  WriteReport(c, FatherLine(c),
              "\r\n\r\nFather's Total = 1/6 + Residuary (Asaba') share\r\n\t  = ", F(c.FatherShare), " + ",
              F(c.FatherResidue), "\r\n\t  = ", F(c.FatherShare + c.FatherResidue), " ", total, CRLF);
}

void GiveToEqualSonsSons(CaseRecord& c) {
  const Integer units = 2 * c.AsabaGrandSons + c.GrandDaughters;
  c.SonsDaughterResidue = c.Residue / units;
  const Fraction daughter = UnitFraction(c, units);
  c.EqualSonsSonResidue = TwiceResidue(c) / units;
  const Fraction son = DoubleFraction(c, units);
  WriteReport(c, Line("Sons Daughter (", c.GrandDaughters, c.SonsDaughterResidue, daughter), CRLF,
              Line("Equal Son's Son (", c.AsabaGrandSons, c.EqualSonsSonResidue, son), twoLineBreaks);
}

/// The son's daughters beside son's sons, or else beside son's son's sons. The fraction of the latter is made
/// with the count of the son's sons, though that is zero here.
void GiveToSonsDaughters(CaseRecord& c) {
  if (c.AsabaGrandSons > 0) return GiveToEqualSonsSons(c);
  if (c.AsabaGtGrandSons == 0) return;
  const Integer units = 2 * c.AsabaGtGrandSons + c.GrandDaughters;
  c.SonsDaughterResidue = c.Residue / units;
  const Fraction daughter = UnitFraction(c, units);
  c.LowerSonsSonResidue = TwiceResidue(c) / units;
  const Fraction son = DoubleFraction(c, 2 * c.AsabaGrandSons + c.GrandDaughters);
  WriteReport(c, Line("Sons Daughter (", c.GrandDaughters, c.SonsDaughterResidue, daughter), CRLF,
              Line("Lower Son's Son (", c.AsabaGtGrandSons, c.LowerSonsSonResidue, son), twoLineBreaks);
}

/// The brothers and sisters of the full or of the consanguine kind.
struct Siblings {
  const char* Brother;
  Integer CaseRecord::*Brothers;
  Double CaseRecord::*BrotherResidue;
  const char* Sister;
  Integer CaseRecord::*Sisters;
  Double CaseRecord::*SisterResidue;
};

constexpr Siblings fullSiblings = {
    "Full Brother (", &CaseRecord::FullBrothers, &CaseRecord::FullBrotherResidue,
    "Full Sister (",  &CaseRecord::FullSisters,  &CaseRecord::FullSisterResidue};
constexpr Siblings consSiblings = {
    "Cons. Brother (", &CaseRecord::ConsBrothers, &CaseRecord::ConsBrotherResidue,
    "Cons. Sister (",  &CaseRecord::ConsSisters,  &CaseRecord::ConsSisterResidue};

void GiveToBrothers(CaseRecord& c, const Siblings& kind) {
  GiveToOneKind(c, kind.Brother, c.*kind.Brothers, kind.BrotherResidue, CRLF);
}

void GiveToSisters(CaseRecord& c, const Siblings& kind) {
  GiveToOneKind(c, kind.Sister, c.*kind.Sisters, kind.SisterResidue, twoLineBreaks);
}

void ReportBoth(CaseRecord& c, const Siblings& kind, Fraction brother, Fraction sister) {
  WriteReport(c, Line(kind.Brother, c.*kind.Brothers, c.*kind.BrotherResidue, brother), CRLF,
              Line(kind.Sister, c.*kind.Sisters, c.*kind.SisterResidue, sister), twoLineBreaks);
}

void GiveToBoth(CaseRecord& c, const Siblings& kind) {
  const Integer units = 2 * c.*kind.Brothers + c.*kind.Sisters;
  c.*kind.SisterResidue = c.Residue / units;
  const Fraction sister = UnitFraction(c, units);
  c.*kind.BrotherResidue = 2 * c.*kind.SisterResidue;
  ReportBoth(c, kind, DoubleFraction(c, units), sister);
}

void GiveToFullSiblingsBesideDaughters(CaseRecord& c) {
  const Integer units = 2 * c.FullBrothers + c.FullSisters;
  c.ResidueUnit = c.Residue / units;
  const Fraction unit = UnitFraction(c, units);
  if (c.FullBrothers > 0 && c.FullSisters > 0) {
    c.FullBrotherResidue = 2 * c.ResidueUnit;
    c.FullSisterResidue = c.ResidueUnit;
    ReportBoth(c, fullSiblings, DoubleFraction(c, units), unit);
  } else if (c.FullBrothers > 0 && c.FullSisters == 0) {
    c.FullBrotherResidue = 2 * c.ResidueUnit;
    WriteReport(c, Line("Full Brother (", c.FullBrothers, c.FullBrotherResidue, DoubleFraction(c, units)),
                twoLineBreaks);
  } else if (c.FullBrothers == 0) {
    c.FullSisterResidue = c.ResidueUnit;
    WriteReport(c, Line("Full Sister (", c.FullSisters, c.FullSisterResidue, unit), twoLineBreaks);
  }
}

void GiveToConsSiblingsBesideDaughters(CaseRecord& c) {
  const Integer units = 2 * c.ConsBrothers + c.ConsSisters;
  c.ResidueUnit = c.Residue / units;
  c.ConsBrotherResidue = 2 * c.ResidueUnit;
  const Fraction brother = DoubleFraction(c, units);
  c.ConsSisterResidue = c.ResidueUnit;
  ReportBoth(c, consSiblings, brother, UnitFraction(c, units));
}

void GiveToClassII(CaseRecord& c) {
  c.ClassIIResidue = c.Residue;
  NameClassIIHeir(c);
  WriteReport(c, c.ClassIIText, " = ", F(c.ClassIIResidue), " ", ResidueFraction(c), " (For all)", CRLF);
}

/// The ultimate father, the son's daughters, the full and then the consanguine brothers and sisters, class
/// II, nobody. No test looks at the residue. If the counts contradict a flag, the chain continues.
void GiveToOthers(CaseRecord& c) {
  if (c.Res(FatherAsResiduary)) return GiveToFather(c);
  if (c.Res(FatherAsSharerAndResiduary)) return GiveToFatherBesideHisSixth(c);
  if (c.Res(SonsDaughterWithSonsSon) && c.GrandDaughters > 0) return GiveToSonsDaughters(c);
  if (c.Res(SonsDaughterWithSonsSonBesideDaughters) && c.GrandDaughters > 0) return GiveToEqualSonsSons(c);
  if (c.Res(FullSiblingsBesideDaughters) && (c.FullSisters > 0 || c.FullBrothers > 0)) {
    return GiveToFullSiblingsBesideDaughters(c);
  }
  if (c.Res(FullSisterBesideDaughters) && c.FullSisters > 0 && c.FullBrothers == 0)
    return GiveToSisters(c, fullSiblings);
  if (c.Res(FullBrothersWithSisters) && c.FullSisters > 0 && c.FullBrothers > 0 && HasNoFemaleDescendant(c)) {
    return GiveToBoth(c, fullSiblings);
  }
  if (c.Res(FullBrothersAlone) && c.FullSisters == 0 && c.FullBrothers > 0 && HasNoFemaleDescendant(c)) {
    return GiveToBrothers(c, fullSiblings);
  }
  if (c.Res(ConsSiblingsBesideDaughters) && c.ConsSisters > 0 && c.ConsBrothers > 0) {
    return GiveToConsSiblingsBesideDaughters(c);
  }
  if (c.Res(ConsSisterBesideDaughters) && c.ConsSisters > 0 && c.ConsBrothers == 0)
    return GiveToSisters(c, consSiblings);
  if (c.Res(ConsBrothersWithSisters) && c.ConsSisters > 0 && c.ConsBrothers > 0 && HasNoFemaleDescendant(c)) {
    return GiveToBoth(c, consSiblings);
  }
  if (c.Res(ConsBrothersAlone) && c.ConsSisters == 0 && c.ConsBrothers > 0)
    return GiveToBrothers(c, consSiblings);
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
  screen.Text3.Text = Join(c.ResiduaryReport, CRLF, CRLF, GeneratedBy(screen.Ports.Time.Now()), CRLF);
}

}  // namespace qismora
