#include "case/Shares.h"
#include "case/narratives/SonsDaughterTexts.h"
#include "rules/Rules.h"

// The son's daughters stand in the daughters' place where no daughter is alive, complete their two thirds
// beside one, and are excluded by two. A son's son of their own line makes them residuaries, before a lower
// one does. Some narratives end in the markers "Res(15)" and "Res(18)" or in the word "True": readers see
// them, and they stay. Only the row of the lower son's son alone stores no fraction.

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
    // The flag is for the level below; the son's daughters stay sharers.
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
