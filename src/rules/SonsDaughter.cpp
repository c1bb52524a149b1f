#include "case/Shares.h"
#include "case/narratives/SonsDaughterTexts.h"
#include "rules/Rules.h"

// The son's daughters take the daughters' place if no daughter is alive, complete the two thirds beside one,
// and are excluded by two. A son's son ("equal", of their own generation) makes them residuaries, else a
// son's son's son ("lower"). Some narratives end in "Res(15)", "Res(18)" or "True". Fixed wording; do not
// correct. The row of a lower son's son without a daughter or a son's son's daughter stores no fraction.

namespace qismora {

void ShareOfSonsDaughter(CaseRecord& c, CaseScreen& screen) {
  using enum SonsDaughterResiduaryText;
  screen.Label2.Caption = "SON'S DAUGHTERS SHARE";
  if (c.GrandDaughters <= 0) {
    TakeNothing(c, SonsDaughterHeir);
    Report(c, SonsDaughterHeir, NoSonsDaughterText);
  } else if (c.Sons > 0) {
    TakeNothing(c, SonsDaughterHeir);
    Report(c, SonsDaughterHeir, SonsDaughterExcludedBySonText, "\tNIL");
  } else if (c.Daughters >= 1 && c.GrandSons > 0) {
    BecomeResiduary(c, SonsDaughterHeir, SonsDaughterWithSonsSonBesideDaughters);
    Report(c, SonsDaughterHeir, SonsDaughterResiduaryTexts[WithEqualSonsSon], "\r\nRes(15)");
  } else if (c.Daughters >= 1 && c.GtGrandSons > 0) {
    BecomeResiduary(c, SonsDaughterHeir, SonsDaughterWithLowerSonsSon);
    Report(c, SonsDaughterHeir, SonsDaughterResiduaryTexts[WithLowerSonsSon],
           c.Daughters == 1 ? "\r\nRes(18)" : "\r\nTrue");
  } else if (c.Daughters >= 2) {
    TakeNothing(c, SonsDaughterHeir);
    Report(c, SonsDaughterHeir, SonsDaughterExcludedByDaughtersText, "\r\n\t",
           AmountLine(c, SonsDaughterHeir));
  } else if (c.Daughters == 1) {
    Take(c, SonsDaughterHeir, 1, 6);
    Report(c, SonsDaughterHeir, SonsDaughterSixthText, "\r\n\t", AmountLine(c, SonsDaughterHeir));
  } else if (c.GrandSons > 0) {
    BecomeResiduary(c, SonsDaughterHeir, SonsDaughterWithSonsSon);
    Report(c, SonsDaughterHeir, SonsDaughterResiduaryTexts[WithEqualSonsSon]);
  } else if (c.GtGrandSons > 0 && c.GtGrandDaughters <= 0) {
    c.Res(SonsDaughterWithLowerSonsSon) = true;
    Report(c, SonsDaughterHeir, SonsDaughterResiduaryTexts[WithLowerSonsSon], CRLF);
  } else {
    // The flag is for the son's son's daughters; the son's daughters stay sharers.
    if (c.GtGrandSons > 0) c.Res(SonsSonsDaughterWithSonsSonsSon) = true;
    if (c.GrandDaughters == 1) {
      Take(c, SonsDaughterHeir, 1, 2);
      Report(c, SonsDaughterHeir, SonsDaughterHalfText, "\r\n\t", AmountLine(c, SonsDaughterHeir));
    } else {
      Take(c, SonsDaughterHeir, 2, 3);
      Report(c, SonsDaughterHeir, SonsDaughterTwoThirdsText, "\r\n\t", AmountLine(c, SonsDaughterHeir),
             "\r\n\r\nSince, number of Son's daughters is ", c.GrandDaughters,
             ", so each will get:\r\n\r\n\t", F(c.SonsDaughterShare / c.GrandDaughters),
             "\r\n\r\n as their own individual shares.");
    }
  }
  ShowResult(c, screen, SonsDaughterHeir);
}

}  // namespace qismora
