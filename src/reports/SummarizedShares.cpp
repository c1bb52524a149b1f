#include "reports/SummarizedShares.h"

#include "base/Text.h"
#include "case/Shares.h"
#include "reports/ReportHeaders.h"

namespace qismora {

namespace {

constexpr const char* sharer = "Sharer ";
constexpr const char* residuary = "Resid (Asaba') ";

/// The entries of the class II check boxes are those from 34 to 45.
constexpr int firstClassIICheckBox = 34;

void Enter(CaseRecord& c, int field, Double amount, const char* kind, const std::string& fraction) {
  c.SummaryAmount(field) = amount;
  c.SummaryKind(field) = kind;
  c.SummaryFraction(field) = fraction;
}

void EnterSharer(CaseRecord& c, int field, Double amount, HeirKind heir) {
  Enter(c, field, amount, sharer, Join(FractionOf(c, heir)));
}
void EnterSharer(CaseRecord& c, int field, HeirKind heir) {
  EnterSharer(c, field, c.*Heirs[heir].Amount, heir);
}

void EnterResiduary(CaseRecord& c, int field, Double amount) { Enter(c, field, amount, residuary, ""); }

/// A kind that is a residuary when any of the flags is set, else a sharer.
void EnterEither(CaseRecord& c, int field, HeirKind heir, std::initializer_list<ResiduaryFlag> flags) {
  for (const ResiduaryFlag flag : flags) {
    if (c.Res(flag)) return EnterResiduary(c, field, c.*Heirs[heir].Amount);
  }
  EnterSharer(c, field, heir);
}

void EnterSpouse(CaseRecord& c) {
  if (c.Wives > 0) return EnterSharer(c, SpouseField, WifeHeir);
  if (c.Husband > 0) return EnterSharer(c, SpouseField, HusbandHeir);
  Enter(c, SpouseField, 0, sharer, "(0/1)");
}

/// One male ascendant. A plus sign after the fraction means that he also takes the residue.
void EnterFather(CaseRecord& c, int field, Double amount) {
  const bool takesResidue = c.Res(FatherAsResiduary) || c.Res(FatherAsSharerAndResiduary);
  if (amount > 0 && takesResidue) {
    Enter(c, field, amount, residuary,
          Join("(", c.FractionNum(FatherHeir), "/", c.FractionDen(FatherHeir), "+)"));
  } else if (amount == 0 && c.Res(FatherAsResiduary)) {
    EnterResiduary(c, field, amount);
  } else {
    EnterSharer(c, field, amount, FatherHeir);
  }
}

std::string HeirLine(const CaseRecord& c, const CaseScreen& screen, int field) {
  return Join(screen.Label1(field).Caption, " = ", screen.Text1(field).Text, " (", F(c.SummaryAmount(field)),
              ")- ", c.SummaryKind(field), c.SummaryFraction(field), CRLF);
}

/// A line for each grandmother entered, and one for the group with the last amount among them.
std::string GrandMotherLines(const CaseRecord& c, const CaseScreen& screen) {
  std::string lines;
  int kept = 0;
  for (int field = MothersMotherField; field <= FathersGrandMotherField; ++field) {
    if (!IsEntered(screen, field)) continue;
    lines += Join(screen.Label1(field).Caption, " = ", screen.Text1(field).Text, " (C)- ",
                  c.SummaryKind(field), c.SummaryFraction(field), CRLF);
    if (c.SummaryAmount(field) > 0) kept = field;
  }
  if (kept == 0) return lines;
  return Join(lines, "TrueGr. Mother (", c.GrandMotherCount, "/", c.GrandMotherGroup, ") = (",
              F(c.SummaryAmount(kept)), ")- ", c.SummaryKind(kept), c.SummaryFraction(kept), CRLF);
}

/// The first ticked class II heir.
std::string ClassIILine(const CaseScreen& screen) {
  for (int i = 0; i < screen.Check1.Size; ++i) {
    if (screen.Check1(i).Value == 1) return Join(screen.Check1(i).Caption, " = (P)- Resid (Asaba')", CRLF);
  }
  return "";
}

std::string HeirLines(const CaseRecord& c, const CaseScreen& screen) {
  std::string lines;
  for (const int field : HeirFieldIndexes) {
    if (field == MothersMotherField) lines += GrandMotherLines(c, screen);
    if (field >= MothersMotherField && field <= FathersGrandMotherField) continue;
    if (IsEntered(screen, field)) lines += HeirLine(c, screen, field);
  }
  return lines + ClassIILine(screen);
}

/// The hint to apply a doctrine. There is none for Aul beside residuaries.
const char* DoctrineHint(const CaseRecord& c) {
  if (c.AulRaddState == Radd) return "\r\n\tAPPLY RADD DOCTRINE\r\n\r\n";
  if (c.AulRaddState == Aul) return "\r\n\tAPPLY AUL DOCTRINE\r\n\r\n";
  return "";
}

}  // namespace

void FillSummaryTable(CaseRecord& c) {
  EnterSpouse(c);
  EnterResiduary(c, SonsField, c.SonAmount);
  EnterEither(c, DaughtersField, DaughterHeir, {SonsWithDaughters});
  EnterResiduary(c, GrandSonsField, c.SonAmount);
  EnterEither(
      c, GrandDaughtersField, SonsDaughterHeir,
      {SonsDaughterWithSonsSonBesideDaughters, SonsDaughterWithSonsSon, SonsDaughterWithLowerSonsSon});
  EnterResiduary(c, GtGrandSonsField, c.SonAmount);
  EnterEither(c, GtGrandDaughtersField, SonsSonsDaughterHeir,
              {SonsSonsDaughterBesideSonsDaughter, SonsSonsDaughterWithSonsSonsSon});
  EnterFather(c, FatherField, c.FatherAmount);
  EnterFather(c, GrandFatherField, c.GrandFatherAmount);
  EnterFather(c, GtGrandFatherField, c.GtGrandFatherAmount);
  EnterSharer(c, MotherField, MotherHeir);
  EnterSharer(c, MothersMotherField, c.MothersMotherAmount, GrandMotherHeir);
  EnterSharer(c, MothersMothersMotherField, c.MothersMothersMotherAmount, GrandMotherHeir);
  EnterSharer(c, FathersMotherField, c.FathersMotherAmount, GrandMotherHeir);
  EnterSharer(c, GrandFathersMotherField, c.GrandFathersMotherAmount, GrandMotherHeir);
  EnterSharer(c, FathersGrandMotherField, c.FathersGrandMotherAmount, GrandMotherHeir);
  EnterEither(c, FullBrothersField, FullBrotherHeir,
              {FullBrothersWithSisters, FullSiblingsBesideDaughters, FullBrothersAlone});
  EnterEither(c, FullSistersField, FullSisterHeir,
              {FullSisterBesideDaughters, FullSiblingsBesideDaughters, FullBrothersWithSisters});
  EnterEither(c, ConsSistersField, ConsSisterHeir,
              {ConsBrothersWithSisters, ConsSisterBesideDaughters, ConsSiblingsBesideDaughters});
  EnterEither(c, ConsBrothersField, ConsBrotherHeir,
              {ConsBrothersAlone, ConsBrothersWithSisters, ConsSiblingsBesideDaughters});
  EnterSharer(c, UterineSistersField, UterineSisterHeir);
  EnterSharer(c, UterineBrothersField, UterineBrotherHeir);
  for (int i = 0; i < c.ClassIIFlag.Size; ++i) {
    c.SummaryAmount(firstClassIICheckBox + i) = c.Residue;
    c.SummaryKind(firstClassIICheckBox + i) = residuary;
  }
}

void BuildSummarizedShares(CaseRecord& c, const CaseScreen& screen) {
  FillSummaryTable(c);
  c.SummaryReport =
      Join(CRLF, "SUMMARIZED SHARES:", CRLF, HeirLines(c, screen), CRLF,
           "NOTE:- ONLY ENTITLED RESIDUARIES [ASABA'T] WILL SHARE THE RESIDUE IF ANY.", CRLF, CRLF,
           "TOTAL SHARED = ", F(c.TotalQShares), CRLF, "RESIDUE = ", F(c.Residue), CRLF, DoctrineHint(c));
}

}  // namespace qismora
