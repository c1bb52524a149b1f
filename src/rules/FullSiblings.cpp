#include "rules/FullSiblings.h"

#include "case/Conditions.h"
#include "case/ResiduaryFlags.h"
#include "case/Shares.h"
#include "case/narratives/FullSiblingTexts.h"
#include "rules/Collaterals.h"

// A son, a son's son, a father or a forefather of him excludes both. Daughters of any line do not: the
// brother and the sister take the residue beside them. The addition that tells the amount of each sister is
// shown on the screen and does not enter her report; the brother's text ends in his fraction and hers does
// not.

namespace qismora {

namespace {

void DecideFullBrother(CaseRecord& c) {
  SetFraction(c, FullBrotherSlot, 0, 1);
  if (c.FullBrothers <= 0) {
    c.FullBrotherShare = 0;
    c.FullBrotherReport = Join(FullBrotherTexts[4], NilTail);
  } else if (HasMaleLine(c)) {
    c.FullBrotherShare = 0;
    c.FullBrotherReport = Join(FullBrotherTexts[0], ExcludingList(c), FullBrotherTexts[1], NilTail);
  } else if (HasDaughtersLine(c)) {
    c.Res(FullSiblingsBesideDaughters) = true;
    c.FullBrotherReport = Join(FullBrotherTexts[2], CRLF, DaughtersList(c), FullBrotherTexts[3],
                               ResiduaryTail(c, FullSiblingsBesideDaughters));
  } else if (c.FullSisters > 0) {
    c.Res(FullBrothersWithSisters) = true;
    c.FullBrotherReport =
        Join(FullBrotherTexts[5], FullBrotherTexts[6], ResiduaryTail(c, FullBrothersWithSisters));
  } else {
    c.Res(FullBrothersAlone) = true;
    c.FullBrotherReport = Join(FullBrotherTexts[7], FullBrotherTexts[8], ResiduaryTail(c, FullBrothersAlone));
  }
}

/// Decides the sister's share and returns the addition for the screen.
std::string DecideFullSister(CaseRecord& c) {
  if (c.FullSisters <= 0) {
    c.FullSisterShare = 0;
    SetFraction(c, FullSisterSlot, 0, 1);
    c.FullSisterReport = Join(FullSisterTexts[4], NilTail);
    return "";
  }
  if (HasMaleLine(c)) {
    c.FullSisterShare = 0;
    SetFraction(c, FullSisterSlot, 0, 1);
    c.FullSisterReport = Join(FullSisterTexts[0], ExcludingList(c), FullSisterTexts[1], NilTail);
    return "";
  }
  if (HasDaughtersLine(c) && c.FullBrothers > 0) {
    c.Res(FullSiblingsBesideDaughters) = true;
    SetFraction(c, FullSisterSlot, 0, 1);
    c.FullSisterReport = Join(FullSisterTexts[2], CRLF, DaughtersList(c), FullSisterTexts[3],
                              ResiduaryTail(c, FullSiblingsBesideDaughters));
    return "";
  }
  if (HasDaughtersLine(c)) {
    c.Res(FullSisterBesideDaughters) = true;
    SetFraction(c, FullSisterSlot, 0, 1);
    c.FullSisterReport =
        Join(FullSisterTexts[9], FullSisterTexts[10], ResiduaryTail(c, FullSisterBesideDaughters));
    return "";
  }
  if (c.FullBrothers > 0) {
    c.Res(FullBrothersWithSisters) = true;
    SetFraction(c, FullSisterSlot, 0, 1);
    c.FullSisterReport =
        Join(FullSisterTexts[5], FullSisterTexts[6], ResiduaryTail(c, FullBrothersWithSisters));
    return "";
  }
  if (c.FullSisters > 1) {
    c.FullSisterShare = (c.NetEstate + c.NetEstate) / 3;
    SetFraction(c, FullSisterSlot, 2, 3);
    c.FullSisterReport = Join(FullSisterTexts[7], FullSisterTexts[8]);
    return Join(CRLF, "Since number of Full Sisters is ", c.FullSisters, ". So each sister will get:", CRLF,
                CRLF, TAB, F(c.FullSisterShare / c.FullSisters), CRLF);
  }
  c.FullSisterShare = c.NetEstate / 2;
  SetFraction(c, FullSisterSlot, 1, 2);
  c.FullSisterReport = Join(FullSisterTexts[7], FullSisterTexts[8]);
  return Join(CRLF, "Since there is only one Full Sister, she will receive:", CRLF, CRLF, TAB,
              F(c.FullSisterShare), FractionText(c, FullSisterSlot), CRLF);
}

}  // namespace

void ShareOfFullBrother(CaseRecord& c, CaseScreen& screen) {
  screen.Label2.Caption = "FULL BROTHER'S SHARE";
  DecideFullBrother(c);
  screen.Text2.Text = Join(c.FullBrotherReport, FractionText(c, FullBrotherSlot));
  screen.Label3.Caption = AmountLine(c, c.FullBrotherShare, FullBrotherSlot);
}

void ShareOfFullSister(CaseRecord& c, CaseScreen& screen) {
  screen.Label2.Caption = "FULL SISTER'S SHARE";
  const std::string addition = DecideFullSister(c);
  screen.Text2.Text = Join(c.FullSisterReport, addition);
  screen.Label3.Caption = AmountLine(c, c.FullSisterShare, FullSisterSlot);
}

}  // namespace qismora
