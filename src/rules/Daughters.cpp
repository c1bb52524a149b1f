#include "case/Conditions.h"
#include "case/Shares.h"
#include "case/narratives/DaughterTexts.h"
#include "rules/Rules.h"

// Only a son makes daughters residuaries; a son's son does not. NoDaughterText already ends in "NIL", so
// beside sons the word appears twice. Fixed wording; do not correct.

namespace qismora {

namespace {

constexpr std::string_view residuaryEnd = "\tRESIDUARY (ASABA')";

/// The narrative of the nearest male descendants. Their amount exists only after the residue is divided.
std::string SonReport(CaseRecord& c) {
  if (!HasMaleDescendant(c)) {
    c.SonAmount = 0;
    return Join(NoSonText, TAB, "NIL");
  }
  if (c.Daughters > 0) {
    return Join(SonWithDaughtersTexts[SonWithDaughtersText::LeftSonsAndDaughters],
                "Son (S/SS/SSS) = ", c.Sons, "/", c.GrandSons, "/", c.GtGrandSons,
                "\r\nDaughter = ", c.Daughters, "\r\nSon's Daughter = ", c.GrandDaughters,
                "\r\nSon's Son's Daughter = ", c.GtGrandDaughters, "\r\n\r\n", SonWithDaughterText,
                residuaryEnd);
  }
  if (c.Sons > 0) return Join(SonAloneText, residuaryEnd);
  if (c.GrandSons > 0) return Join(SonsSonAloneText, residuaryEnd);
  return Join(SonsSonsSonAloneText, residuaryEnd);
}

}  // namespace

void ShareOfDaughters(CaseRecord& c, CaseScreen& screen) {
  using enum NoDaughterEntry;
  screen.Label2.Caption = "DAUGHTERS' SHARE";
  SetFraction(c, DaughterHeir, Integer(0), Integer(1));  // stays if the amount overflows
  if (c.Sons > 0 && c.Daughters == 0) {
    TakeNothing(c, DaughterHeir);
    Report(c, DaughterHeir, NoDaughterText[NoDaughter], "\r\n\tNIL");
  } else if (c.Sons > 0) {
    BecomeResiduary(c, DaughterHeir, SonsWithDaughters);
    Report(c, DaughterHeir, DaughterResiduaryOpening, "Son(s) = ", c.Sons, "\r\nDaughter(s) = ", c.Daughters,
           "\r\n\r\n", DaughterWithSonText, residuaryEnd);
  } else if (c.Daughters == 1) {
    Take(c, DaughterHeir, 1, 2);
    Report(c, DaughterHeir, OneDaughterText, "\r\n\t", AmountLine(c, DaughterHeir));
  } else if (c.Daughters >= 2) {
    Take(c, DaughterHeir, 2, 3);
    Report(c, DaughterHeir, TwoDaughtersText, TAB, AmountLine(c, DaughterHeir),
           "\r\n\r\nSince, number of daughters is ", c.Daughters,
           " so, EACH daughter will receive share in the net estate wealth equal to:\r\n\r\n\t",
           F(c.DaughterShare / c.Daughters));
  } else {
    TakeNothing(c, DaughterHeir);
    Report(c, DaughterHeir, NoDaughterText[NoDaughter]);
  }
  ShowResult(c, screen, DaughterHeir);
}

void ShareOfSon(CaseRecord& c, CaseScreen& screen) {
  screen.Label2.Caption = "SON'S SHARE (RESIDUARY (ASABA'))";
  c.ResiduaryReport = SonReport(c);
  screen.Text2.Text = c.ResiduaryReport;
  screen.Label3.Caption = F(c.SonAmount);
}

}  // namespace qismora
