#include "rules/Father.h"

#include "case/Conditions.h"
#include "case/ResiduaryFlags.h"
#include "case/Shares.h"
#include "case/narratives/FatherTexts.h"

// Father, grand father and great grand father are never three heirs: the nearest of them who lives is the
// ultimate father and has one share. The narrative of a sharer shows his fraction twice.

namespace qismora {

void SetUltimateFather(CaseRecord& c) {
  if (c.Father > 0) {
    c.UltimateFatherName = "Father";
    c.FatherAmount = c.FatherShare;
  } else if (c.GrandFather > 0) {
    c.UltimateFatherName = "Grand Father";
    c.GrandFatherAmount = c.FatherShare;
  } else if (c.GtGrandFather > 0) {
    c.UltimateFatherName = "Great Grand Father";
    c.GtGrandFatherAmount = c.FatherShare;
  } else {
    c.UltimateFatherName = "Non";
  }
}

namespace {

void TakeSixth(CaseRecord& c) {
  c.FatherShare = c.NetEstate / 6;
  SetFraction(c, FatherSlot, 1, 6);
}

std::string SixthReport(const CaseRecord& c) {
  return Join(FatherWithSonsTexts[0], c.UltimateFatherName, FatherWithSonsTexts[1], CRLF, CRLF,
              "Daughters = ", c.Daughters, CRLF, "Grand Daughters = ", c.GrandDaughters, CRLF,
              "Great Grand Daughters = ", c.GtGrandDaughters, CRLF, FatherWithSonsTexts[2], CRLF, "Share of ",
              c.UltimateFatherName, CRLF, TAB, " = ", F(c.FatherShare), FractionText(c, FatherSlot));
}

void DecideFather(CaseRecord& c) {
  if (!HasFatherLine(c)) {
    c.FatherShare = 0;
    SetFraction(c, FatherSlot, 0, 1);
    c.FatherReport = Join(NoFatherText, CRLF);
    return;
  }
  if (c.Sons > 0) {
    TakeSixth(c);
    c.FatherReport = SixthReport(c);
    return;
  }
  if (!HasDescendant(c)) {
    SetFraction(c, FatherSlot, 0, 1);
    c.Res(FatherAsResiduary) = true;
    c.FatherReport = FatherAsResiduaryText;
    return;
  }
  if (HasNoSonsLine(c)) {
    TakeSixth(c);
    c.Res(FatherAsSharerAndResiduary) = true;
    c.FatherReport = FatherAsSharerAndResiduaryText;
    return;
  }
  TakeSixth(c);
  c.FatherReport = SixthReport(c);
}

}  // namespace

void ShareOfFather(CaseRecord& c, CaseScreen& screen) {
  // First for the name in the narrative, last so that the final amount reaches his slot.
  SetUltimateFather(c);
  screen.Label2.Caption = "Ultimate FATHER'S SHARE";
  DecideFather(c);
  screen.Text2.Text = Join(c.UltimateFatherName, " is the Ultimate Father. ", c.FatherReport, CRLF,
                           FractionText(c, FatherSlot));
  screen.Label3.Caption = AmountLine(c, c.FatherShare, FatherSlot);
  SetUltimateFather(c);
}

}  // namespace qismora
