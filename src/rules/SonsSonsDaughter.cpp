#include "rules/SonsSonsDaughter.h"

#include "case/ResiduaryFlags.h"
#include "case/Shares.h"
#include "case/narratives/SonsDaughterTexts.h"
#include "case/narratives/SonsSonsDaughterTexts.h"

// One level below the son's daughters. Beside a daughter and a son's son's son she is a residuary whose
// narrative was never supplied: it is empty. Two or more son's daughters exclude her even beside a son's
// son's son.

namespace qismora {

namespace {

void TakeNothing(CaseRecord& c) {
  c.SonsSonsDaughterShare = 0;
  SetFraction(c, SonsSonsDaughterSlot, 0, 1);
}

void BecomeResiduary(CaseRecord& c) {
  TakeNothing(c);
  c.Res(SonsSonsDaughterWithSonsSonsSon) = true;
}

void TakeSixth(CaseRecord& c) {
  c.SonsSonsDaughterShare = c.NetEstate / 6;
  SetFraction(c, SonsSonsDaughterSlot, 1, 6);
}

std::string AmountTail(const CaseRecord& c) {
  return AmountLine(c, c.SonsSonsDaughterShare, SonsSonsDaughterSlot);
}

/// What each of them takes; the word each is spelt in two ways.
std::string EachShare(const CaseRecord& c, const char* each) {
  return Join(CRLF, CRLF, "Number of Son's son's daughter being ", c.GtGrandDaughters, ", Share of ", each,
              " Son's son's daughter will be:", CRLF, CRLF, TAB,
              F(c.SonsSonsDaughterShare / c.GtGrandDaughters));
}

void DecideBesideDaughters(CaseRecord& c) {
  if (c.GrandDaughters > 0) {
    TakeNothing(c);
    c.SonsSonsDaughterReport = SonsSonsDaughterTexts[9];
  } else if (c.GtGrandSons > 0) {
    BecomeResiduary(c);
    c.SonsSonsDaughterReport = SonsDaughterResiduaryTexts[4];
  } else {
    TakeSixth(c);
    c.SonsSonsDaughterReport = Join(SonsSonsDaughterTexts[1], TAB, AmountTail(c), EachShare(c, "each"));
  }
}

void DecideBesideSonsDaughters(CaseRecord& c) {
  if (c.GrandDaughters == 1 && c.GtGrandSons > 0) {
    BecomeResiduary(c);
    c.SonsSonsDaughterReport = SonsSonsDaughterTexts[2];
  } else if (c.GrandDaughters == 1) {
    TakeSixth(c);
    c.SonsSonsDaughterReport = Join(SonsSonsDaughterSixthText, SonsSonsDaughterTexts[3], TAB, AmountTail(c));
  } else {
    TakeNothing(c);
    c.SonsSonsDaughterReport = Join(SonsSonsDaughterTexts[4], FractionText(c, SonsSonsDaughterSlot));
  }
}

void DecideAlone(CaseRecord& c) {
  if (c.GtGrandSons > 0) {
    BecomeResiduary(c);
    c.SonsSonsDaughterReport = SonsSonsDaughterTexts[5];
  } else if (c.GtGrandDaughters == 1) {
    c.SonsSonsDaughterShare = c.NetEstate / 2;
    SetFraction(c, SonsSonsDaughterSlot, 1, 2);
    c.SonsSonsDaughterReport = Join(SonsSonsDaughterTexts[6], AmountTail(c));
  } else {
    c.SonsSonsDaughterShare = 2 * c.NetEstate / 3;
    SetFraction(c, SonsSonsDaughterSlot, 2, 3);
    c.SonsSonsDaughterReport = Join(SonsSonsDaughterTexts[7], AmountTail(c), EachShare(c, "EACH"));
  }
}

void DecideSonsSonsDaughter(CaseRecord& c) {
  if (c.GtGrandDaughters <= 0) {
    TakeNothing(c);
    c.SonsSonsDaughterReport = SonsSonsDaughterTexts[8];
    return;
  }
  if (c.Res(SonsDaughterWithLowerSonsSon) && c.Daughters == 0) {
    // The son's daughter sets that flag without a daughter only where no son's son's daughter lives, so
    // that a whole run does not come here.
    if (c.GtGrandSons <= 0) return;
    TakeNothing(c);
    c.Res(SonsSonsDaughterBesideSonsDaughter) = true;
    c.Res(SonsDaughterWithLowerSonsSon) = false;
    c.SonsSonsDaughterReport = Join("Re-Write", SonsDaughterResiduaryTexts[4]);
    return;
  }
  if (c.Sons > 0 || c.GrandSons > 0) {
    TakeNothing(c);
    c.SonsSonsDaughterReport = SonsSonsDaughterTexts[0];
    return;
  }
  if (c.Daughters > 0) return DecideBesideDaughters(c);
  if (c.GrandDaughters >= 1) return DecideBesideSonsDaughters(c);
  DecideAlone(c);
}

}  // namespace

void ShareOfSonsSonsDaughter(CaseRecord& c, CaseScreen& screen) {
  screen.Label2.Caption = "GRANDSON'S DAUGHTER SHARE";
  DecideSonsSonsDaughter(c);
  screen.Text2.Text = c.SonsSonsDaughterReport;
  screen.Label3.Caption = AmountTail(c);
}

}  // namespace qismora
