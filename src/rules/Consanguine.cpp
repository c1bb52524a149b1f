#include "case/Conditions.h"
#include "case/Shares.h"
#include "case/narratives/ConsanguineTexts.h"
#include "rules/Collaterals.h"
#include "rules/Rules.h"

// Half siblings on the father's side. A full brother or two full sisters exclude the sister. Beside one full
// sister she completes the two thirds with a sixth, even if a consanguine brother is alive. The brother's
// rule does not look at full brothers and sisters. Beside female descendants it sets no flag; he then takes
// only if his sister's rule sets one.

namespace qismora {

void ShareOfConsSister(CaseRecord& c, CaseScreen& screen) {
  using enum ConsSisterText;
  screen.Label2.Caption = "CONSANGUINE SISTER'S SHARE";
  if (c.ConsSisters <= 0) {
    TakeNothing(c, ConsSisterHeir);
    Report(c, ConsSisterHeir, ConsSisterTexts[NoConsSister], NilTail);
  } else if (HasMaleExcluder(c) || c.FullBrothers > 0 || c.FullSisters > 1) {
    TakeNothing(c, ConsSisterHeir);
    Report(c, ConsSisterHeir, ConsSisterTexts[LeftExcluders], ExcludingList(c),
           "Full Brother = ", c.FullBrothers, CRLF, ConsSisterTexts[Excluded], NilTail);
  } else if (c.FullSisters == 1 && HasFemaleDescendant(c)) {
    TakeNothing(c, ConsSisterHeir);
    Report(c, ConsSisterHeir, ConsSisterTexts[LeftExcluders], DaughtersList(c),
           ConsSisterBesideFullSisterText, NilTail);
  } else if (c.FullSisters == 1) {
    Take(c, ConsSisterHeir, 1, 6);
    Report(c, ConsSisterHeir, ConsSisterTexts[LeftOneFullSister], ConsSisterTexts[SixthBesideFullSister],
           "\r\n\t", AmountLine(c, ConsSisterHeir));
  } else if (c.ConsBrothers > 0 && !HasFemaleDescendant(c)) {
    BecomeResiduary(c, ConsSisterHeir, ConsBrothersWithSisters);
    Report(c, ConsSisterHeir, ConsSisterTexts[LeftConsBrother], ConsSisterTexts[ResiduaryWithBrother],
           ResiduaryTail);
  } else if (c.ConsBrothers > 0) {
    BecomeResiduary(c, ConsSisterHeir, ConsSiblingsBesideDaughters);
    Report(c, ConsSisterHeir, ConsSisterTexts[ResiduaryWithBrotherBesideDaughters], CRLF, ResiduaryTail);
  } else if (c.ConsBrothers == 0 && HasFemaleDescendant(c)) {
    BecomeResiduary(c, ConsSisterHeir, ConsSisterBesideDaughters);
    Report(c, ConsSisterHeir, ConsSisterTexts[ResiduaryBesideDaughters], CRLF, ResiduaryTail);
  } else if (c.ConsSisters > 1) {
    Take(c, ConsSisterHeir, 2, 3);
    Report(c, ConsSisterHeir, ConsSisterTexts[LeftNobodyNearer], ConsSisterTexts[SharerOfHalfOrTwoThirds],
           "\r\nSince number of Consanguine Sisters is ", c.ConsSisters,
           ". So each Consanguine sister will get:\r\n\r\n\t", F(c.ConsSisterShare / c.ConsSisters), CRLF);
  } else {
    Take(c, ConsSisterHeir, 1, 2);
    Report(c, ConsSisterHeir, ConsSisterTexts[LeftNobodyNearer], ConsSisterTexts[SharerOfHalfOrTwoThirds],
           "\r\nSince there is only one Consanguine Sister, she will receive:\r\n\r\n\t",
           F(c.ConsSisterShare), CRLF);
  }
  ShowResult(c, screen, ConsSisterHeir);
}

void ShareOfConsBrother(CaseRecord& c, CaseScreen& screen) {
  using enum ConsBrotherText;
  screen.Label2.Caption = "CONSANGUINE BROTHER'S SHARE";
  if (c.ConsBrothers <= 0) {
    TakeNothing(c, ConsBrotherHeir);
    Report(c, ConsBrotherHeir, ConsBrotherTexts[NoConsBrother], NilTail);
  } else if (HasMaleExcluder(c)) {
    TakeNothing(c, ConsBrotherHeir);
    Report(c, ConsBrotherHeir, ConsBrotherTexts[LeftExcluders], ExcludingList(c), ConsBrotherTexts[Excluded],
           NilTail);
  } else if (HasFemaleDescendant(c)) {
    SetFraction(c, ConsBrotherHeir, Integer(0), Integer(1));  // no flag: that is for his sister's rule to set
    Report(c, ConsBrotherHeir, ConsBrotherTexts[LeftNoExcluder], CRLF, DaughtersList(c),
           ConsBrotherTexts[ResiduaryBesideDaughters], "\r\n\tRESIDUARY (ASABA')");
  } else if (c.ConsSisters > 0) {
    BecomeResiduary(c, ConsBrotherHeir, ConsBrothersWithSisters);
    Report(c, ConsBrotherHeir, ConsBrotherTexts[LeftConsSister], ConsBrotherTexts[ResiduaryWithSister],
           ResiduaryTail);
  } else {
    BecomeResiduary(c, ConsBrotherHeir, ConsBrothersAlone);
    Report(c, ConsBrotherHeir, ConsBrotherTexts[LeftNobodyNearer], ConsBrotherTexts[ResiduaryAlone],
           ResiduaryTail);
  }
  ShowResult(c, screen, ConsBrotherHeir);
}

}  // namespace qismora
