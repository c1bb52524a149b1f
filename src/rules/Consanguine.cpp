#include "rules/Consanguine.h"

#include "case/Conditions.h"
#include "case/ResiduaryFlags.h"
#include "case/Shares.h"
#include "case/narratives/ConsanguineTexts.h"
#include "rules/Collaterals.h"

// Half siblings on the father's side. A full brother or two full sisters shut the sister out; beside one full
// sister she completes the two thirds with a sixth, even where a consanguine brother lives. The brother's
// rule does not look at the full brothers and sisters at all, and beside daughters it sets no flag: only the
// flag that his sister sets can serve him then.

namespace qismora {

namespace {

void DecideConsSister(CaseRecord& c) {
  if (c.ConsSisters <= 0) {
    c.ConsSisterShare = 0;
    SetFraction(c, ConsSisterSlot, 0, 1);
    c.ConsSisterReport = Join(ConsSisterTexts[4], NilTail);
    return;
  }
  if (HasMaleLine(c) || c.FullBrothers > 0 || c.FullSisters > 1) {
    c.ConsSisterShare = 0;
    SetFraction(c, ConsSisterSlot, 0, 1);
    c.ConsSisterReport = Join(ConsSisterTexts[0], ExcludingList(c), "Full Brother = ", c.FullBrothers, CRLF,
                              ConsSisterTexts[1], NilTail);
    return;
  }
  if (c.FullSisters == 1 && HasDaughtersLine(c)) {
    c.ConsSisterShare = 0;
    SetFraction(c, ConsSisterSlot, 0, 1);
    c.ConsSisterReport = Join(ConsSisterTexts[0], DaughtersList(c), ConsSisterBesideFullSisterText, NilTail);
    return;
  }
  if (c.FullSisters == 1) {
    c.ConsSisterShare = c.NetEstate / 6;
    SetFraction(c, ConsSisterSlot, 1, 6);
    c.ConsSisterReport = Join(ConsSisterTexts[2], ConsSisterTexts[3], CRLF, TAB, F(c.ConsSisterShare),
                              FractionText(c, ConsSisterSlot));
    return;
  }
  if (c.ConsBrothers > 0 && !HasDaughtersLine(c)) {
    c.Res(ConsBrothersWithSisters) = true;
    SetFraction(c, ConsSisterSlot, 0, 1);
    c.ConsSisterReport =
        Join(ConsSisterTexts[5], ConsSisterTexts[6], ResiduaryTail(c, ConsBrothersWithSisters));
    return;
  }
  if (c.ConsBrothers > 0) {
    c.Res(ConsSiblingsBesideDaughters) = true;
    SetFraction(c, ConsSisterSlot, 0, 1);
    c.ConsSisterReport = Join(ConsSisterTexts[9], CRLF, ResiduaryTail(c, ConsSiblingsBesideDaughters));
    return;
  }
  if (c.ConsBrothers == 0 && HasDaughtersLine(c)) {
    c.Res(ConsSisterBesideDaughters) = true;
    SetFraction(c, ConsSisterSlot, 0, 1);
    c.ConsSisterReport = Join(ConsSisterTexts[10], CRLF, ResiduaryTail(c, ConsSisterBesideDaughters));
    return;
  }
  if (c.ConsSisters > 1) {
    c.ConsSisterShare = (c.NetEstate + c.NetEstate) / 3;
    SetFraction(c, ConsSisterSlot, 2, 3);
    c.ConsSisterReport =
        Join(ConsSisterTexts[7], ConsSisterTexts[8], CRLF, "Since number of Consanguine Sisters is ",
             c.ConsSisters, ". So each Consanguine sister will get:", CRLF, CRLF, TAB,
             F(c.ConsSisterShare / c.ConsSisters), CRLF);
    return;
  }
  c.ConsSisterShare = c.NetEstate / 2;
  SetFraction(c, ConsSisterSlot, 1, 2);
  c.ConsSisterReport = Join(ConsSisterTexts[7], ConsSisterTexts[8], CRLF,
                            "Since there is only one Consanguine Sister, she will receive:", CRLF, CRLF, TAB,
                            F(c.ConsSisterShare), CRLF);
}

void DecideConsBrother(CaseRecord& c) {
  SetFraction(c, ConsBrotherSlot, 0, 1);
  if (c.ConsBrothers <= 0) {
    c.ConsBrotherShare = 0;
    c.ConsBrotherReport = Join(ConsBrotherTexts[4], NilTail);
  } else if (HasMaleLine(c)) {
    c.ConsBrotherShare = 0;
    c.ConsBrotherReport = Join(ConsBrotherTexts[0], ExcludingList(c), ConsBrotherTexts[1], NilTail);
  } else if (HasDaughtersLine(c)) {
    c.ConsBrotherReport = Join(ConsBrotherTexts[9], CRLF, DaughtersList(c), ConsBrotherTexts[10], CRLF, TAB,
                               "RESIDUARY (ASABA')");
  } else if (c.ConsSisters > 0) {
    c.Res(ConsBrothersWithSisters) = true;
    c.ConsBrotherReport =
        Join(ConsBrotherTexts[2], ConsBrotherTexts[3], ResiduaryTail(c, ConsBrothersWithSisters));
  } else {
    c.Res(ConsBrothersAlone) = true;
    c.ConsBrotherReport = Join(ConsBrotherTexts[5], ConsBrotherTexts[6], ResiduaryTail(c, ConsBrothersAlone));
  }
}

}  // namespace

void ShareOfConsSister(CaseRecord& c, CaseScreen& screen) {
  screen.Label2.Caption = "CONSANGUINE SISTER'S SHARE";
  DecideConsSister(c);
  screen.Text2.Text = c.ConsSisterReport;
  screen.Label3.Caption = AmountLine(c, c.ConsSisterShare, ConsSisterSlot);
}

void ShareOfConsBrother(CaseRecord& c, CaseScreen& screen) {
  screen.Label2.Caption = "CONSANGUINE BROTHER'S SHARE";
  DecideConsBrother(c);
  screen.Text2.Text = c.ConsBrotherReport;
  screen.Label3.Caption = AmountLine(c, c.ConsBrotherShare, ConsBrotherSlot);
}

}  // namespace qismora
