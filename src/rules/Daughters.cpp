#include "rules/Daughters.h"

#include "case/Conditions.h"
#include "case/ResiduaryFlags.h"
#include "case/Shares.h"
#include "case/narratives/DaughterTexts.h"

// Only a son makes daughters residuaries; a son's son beside them does not. NoDaughterText ends in "NIL" of
// its own, so that the word stands twice beside sons.

namespace qismora {

namespace {

constexpr std::string_view residuaryEnd = "\tRESIDUARY (ASABA')";

void DecideDaughters(CaseRecord& c) {
  if (c.Sons > 0 && c.Daughters == 0) {
    c.DaughterShare = 0;
    SetFraction(c, DaughterSlot, 0, 1);
    c.DaughterReport = Join(NoDaughterText[0], CRLF, TAB, "NIL");
    return;
  }
  if (c.Sons > 0) {
    SetFraction(c, DaughterSlot, 0, 1);
    c.Res(SonsWithDaughters) = true;
    c.DaughterReport = Join(DaughterResiduaryOpening, "Son(s) = ", c.Sons, CRLF,
                            "Daughter(s) = ", c.Daughters, CRLF, CRLF, DaughterWithSonText, residuaryEnd);
    return;
  }
  if (c.Daughters == 1) {
    c.DaughterShare = c.NetEstate / 2;
    SetFraction(c, DaughterSlot, 1, 2);
    c.DaughterReport = Join(OneDaughterText, CRLF, TAB, F(c.DaughterShare), FractionText(c, DaughterSlot));
    return;
  }
  if (c.Daughters >= 2) {
    c.DaughterShare = 2 * c.NetEstate / 3;
    SetFraction(c, DaughterSlot, 2, 3);
    c.DaughterReport = Join(TwoDaughtersText, TAB, F(c.DaughterShare), FractionText(c, DaughterSlot), CRLF,
                            CRLF, "Since, number of daughters is ", c.Daughters,
                            " so, EACH daughter will receive share in the net estate wealth equal to:", CRLF,
                            CRLF, TAB, F(c.DaughterShare / c.Daughters));
    return;
  }
  c.DaughterShare = 0;
  SetFraction(c, DaughterSlot, 0, 1);
  c.DaughterReport = NoDaughterText[0];
}

/// The words of a son's standing. His amount exists only after the residue is divided.
std::string SonReport(CaseRecord& c) {
  if (!HasSonsLine(c)) {
    c.SonAmount = 0;
    return Join(NoSonText, TAB, "NIL");
  }
  if (c.Daughters > 0) {
    return Join(SonWithDaughtersTexts[0], "Son (S/SS/SSS) = ", c.Sons, "/", c.GrandSons, "/", c.GtGrandSons,
                CRLF, "Daughter = ", c.Daughters, CRLF, "Son's Daughter = ", c.GrandDaughters, CRLF,
                "Son's Son's Daughter = ", c.GtGrandDaughters, CRLF, CRLF, SonWithDaughterText, residuaryEnd);
  }
  if (c.Sons > 0) return Join(SonAloneText, residuaryEnd);
  if (c.GrandSons > 0) return Join(SonsSonAloneText, residuaryEnd);
  return Join(SonsSonsSonAloneText, residuaryEnd);
}

}  // namespace

void ShareOfDaughters(CaseRecord& c, CaseScreen& screen) {
  screen.Label2.Caption = "DAUGHTERS' SHARE";
  SetFraction(c, DaughterSlot, 0, 1);
  DecideDaughters(c);
  screen.Text2.Text = c.DaughterReport;
  screen.Label3.Caption = AmountLine(c, c.DaughterShare, DaughterSlot);
}

void ShareOfSon(CaseRecord& c, CaseScreen& screen) {
  screen.Label2.Caption = "SON'S SHARE (RESIDUARY (ASABA'))";
  c.ResiduaryReport = SonReport(c);
  screen.Text2.Text = c.ResiduaryReport;
  screen.Label3.Caption = F(c.SonAmount);
}

}  // namespace qismora
