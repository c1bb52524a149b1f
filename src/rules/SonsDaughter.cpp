#include "rules/SonsDaughter.h"

#include "case/ResiduaryFlags.h"
#include "case/Shares.h"
#include "case/narratives/SonsDaughterTexts.h"

// The son's daughters stand in the daughters' place where no daughter lives, complete their two thirds beside
// one, and are shut out by two. A son's son of their own line makes them residuaries, before a lower one
// does. The markers "Res(15)" and "Res(18)" and the word "True" at the end of some narratives are shown to
// the user, and only the row of the lower son's son alone writes no fraction.

namespace qismora {

namespace {

void TakeNothing(CaseRecord& c) {
  c.SonsDaughterShare = 0;
  SetFraction(c, SonsDaughterSlot, 0, 1);
}

void BecomeResiduary(CaseRecord& c, ResiduaryFlag flag) {
  SetFraction(c, SonsDaughterSlot, 0, 1);
  c.Res(flag) = true;
}

std::string AmountTail(const CaseRecord& c) { return AmountLine(c, c.SonsDaughterShare, SonsDaughterSlot); }

void TakeHalfOrTwoThirds(CaseRecord& c) {
  if (c.GrandDaughters == 1) {
    c.SonsDaughterShare = c.NetEstate / 2;
    SetFraction(c, SonsDaughterSlot, 1, 2);
    c.SonsDaughterReport = Join(SonsDaughterHalfText, CRLF, TAB, AmountTail(c));
    return;
  }
  c.SonsDaughterShare = 2 * c.NetEstate / 3;
  SetFraction(c, SonsDaughterSlot, 2, 3);
  c.SonsDaughterReport =
      Join(SonsDaughterTwoThirdsText, CRLF, TAB, AmountTail(c), CRLF, CRLF,
           "Since, number of Son's daughters is ", c.GrandDaughters, ", so each will get:", CRLF, CRLF, TAB,
           F(c.SonsDaughterShare / c.GrandDaughters), CRLF, CRLF, " as their own individual shares.");
}

void DecideBesideTwoDaughters(CaseRecord& c) {
  if (c.GrandSons > 0) {
    BecomeResiduary(c, SonsDaughterWithSonsSonBesideDaughters);
    c.SonsDaughterReport = Join(SonsDaughterResiduaryTexts[1], CRLF, "Res(15)");
    return;
  }
  if (c.GtGrandSons > 0) {
    BecomeResiduary(c, SonsDaughterWithLowerSonsSon);
    c.SonsDaughterReport =
        Join(SonsDaughterResiduaryTexts[0], CRLF, FlagText(c.Res(SonsDaughterWithLowerSonsSon)));
    return;
  }
  TakeNothing(c);
  c.SonsDaughterReport = Join(SonsDaughterExcludedByDaughtersText, CRLF, TAB, AmountTail(c));
}

void DecideBesideOneDaughter(CaseRecord& c) {
  if (c.GrandSons > 0) {
    BecomeResiduary(c, SonsDaughterWithSonsSonBesideDaughters);
    c.SonsDaughterReport = Join(SonsDaughterResiduaryTexts[1], CRLF, "Res(15)");
    return;
  }
  if (c.GtGrandSons > 0) {
    BecomeResiduary(c, SonsDaughterWithLowerSonsSon);
    c.SonsDaughterReport = Join(SonsDaughterResiduaryTexts[0], CRLF, "Res(18)");
    return;
  }
  c.SonsDaughterShare = c.NetEstate / 6;
  SetFraction(c, SonsDaughterSlot, 1, 6);
  c.SonsDaughterReport = Join(SonsDaughterSixthText, CRLF, TAB, AmountTail(c));
}

void DecideWithoutDaughters(CaseRecord& c) {
  if (c.GrandSons > 0) {
    BecomeResiduary(c, SonsDaughterWithSonsSon);
    c.SonsDaughterReport = SonsDaughterResiduaryTexts[1];
    return;
  }
  if (c.GtGrandSons > 0 && c.GtGrandDaughters > 0) {
    // The flag speaks for the level below; the son's daughters stay sharers.
    c.Res(SonsSonsDaughterWithSonsSonsSon) = true;
    return TakeHalfOrTwoThirds(c);
  }
  if (c.GtGrandSons > 0) {
    c.Res(SonsDaughterWithLowerSonsSon) = true;
    c.SonsDaughterReport = Join(SonsDaughterResiduaryTexts[0], CRLF);
    return;
  }
  TakeHalfOrTwoThirds(c);
}

void DecideSonsDaughter(CaseRecord& c) {
  if (c.GrandDaughters <= 0) {
    TakeNothing(c);
    c.SonsDaughterReport = NoSonsDaughterText;
    return;
  }
  if (c.Sons > 0) {
    TakeNothing(c);
    c.SonsDaughterReport = Join(SonsDaughterExcludedBySonText, TAB, "NIL");
    return;
  }
  if (c.Daughters >= 2) return DecideBesideTwoDaughters(c);
  if (c.Daughters == 1) return DecideBesideOneDaughter(c);
  DecideWithoutDaughters(c);
}

}  // namespace

void ShareOfSonsDaughter(CaseRecord& c, CaseScreen& screen) {
  screen.Label2.Caption = "SON'S DAUGHTERS SHARE";
  DecideSonsDaughter(c);
  screen.Text2.Text = c.SonsDaughterReport;
  screen.Label3.Caption = AmountTail(c);
}

}  // namespace qismora
