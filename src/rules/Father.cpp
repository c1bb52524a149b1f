#include "case/Conditions.h"
#include "case/Shares.h"
#include "case/narratives/FatherTexts.h"
#include "rules/Rules.h"

// Father, grandfather and great grandfather are one heir: the nearest of them who is alive is the ultimate
// father. The narrative of a sharer shows his fraction twice. Fixed wording; do not correct.

namespace qismora {

namespace {

/// Names the ultimate father and copies FatherShare into his slot.
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

}  // namespace

void ShareOfFather(CaseRecord& c, CaseScreen& screen) {
  using enum FatherWithSonsText;
  // Called here for the name in the narrative, and at the end to copy the final amount into his slot.
  SetUltimateFather(c);
  screen.Label2.Caption = "Ultimate FATHER'S SHARE";
  if (!HasMaleAscendant(c)) {
    TakeNothing(c, FatherHeir);
    Report(c, FatherHeir, NoFatherText, CRLF);
  } else if (!HasDescendant(c)) {
    BecomeResiduary(c, FatherHeir, FatherAsResiduary);
    Report(c, FatherHeir, FatherAsResiduaryText);
  } else if (HasNoMaleDescendant(c)) {
    Take(c, FatherHeir, 1, 6);
    c.Res(FatherAsSharerAndResiduary) = true;
    Report(c, FatherHeir, FatherAsSharerAndResiduaryText);
  } else {
    Take(c, FatherHeir, 1, 6);
    Report(c, FatherHeir, FatherWithSonsTexts[HeIsHis], c.UltimateFatherName,
           FatherWithSonsTexts[LeftSonsAnd], "\r\n\r\nDaughters = ", c.Daughters,
           "\r\nGrand Daughters = ", c.GrandDaughters, "\r\nGreat Grand Daughters = ", c.GtGrandDaughters,
           CRLF, FatherWithSonsTexts[SixthOnly], "\r\nShare of ", c.UltimateFatherName,
           "\r\n\t = ", AmountLine(c, FatherHeir));
  }
  ShowResult(c, screen, FatherHeir,
             Join(c.UltimateFatherName, " is the Ultimate Father. ", c.FatherReport, CRLF, "  ",
                  FractionOf(c, FatherHeir)));
  SetUltimateFather(c);
}

}  // namespace qismora
