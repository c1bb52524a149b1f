#include "case/Conditions.h"
#include "case/Shares.h"
#include "case/narratives/FullSiblingTexts.h"
#include "rules/Collaterals.h"
#include "rules/Rules.h"

// A male descendant or ascendant excludes both. Female descendants do not: the brother and the sister take
// the residue beside them. The screen adds the amount of each sister to her report; the report itself lacks
// it. The brother's text ends in his fraction and hers does not. Fixed wording; do not correct.

namespace qismora {

namespace {

/// What the screen shows after the report of a sister who is a sharer.
std::string SharerAddition(const CaseRecord& c) {
  if (c.FullSisters > 1) {
    return Join("\r\nSince number of Full Sisters is ", c.FullSisters, ". So each sister will get:\r\n\r\n\t",
                F(c.FullSisterShare / c.FullSisters), CRLF);
  }
  return Join("\r\nSince there is only one Full Sister, she will receive:\r\n\r\n\t",
              AmountLine(c, FullSisterHeir), CRLF);
}

}  // namespace

void ShareOfFullBrother(CaseRecord& c, CaseScreen& screen) {
  using enum FullBrotherText;
  screen.Label2.Caption = "FULL BROTHER'S SHARE";
  if (c.FullBrothers <= 0) {
    TakeNothing(c, FullBrotherHeir);
    Report(c, FullBrotherHeir, FullBrotherTexts[NoFullBrother], NilTail);
  } else if (HasMaleExcluder(c)) {
    TakeNothing(c, FullBrotherHeir);
    Report(c, FullBrotherHeir, FullBrotherTexts[LeftExcluders], ExcludingList(c), FullBrotherTexts[Excluded],
           NilTail);
  } else if (HasFemaleDescendant(c)) {
    BecomeResiduary(c, FullBrotherHeir, FullSiblingsBesideDaughters);
    Report(c, FullBrotherHeir, FullBrotherTexts[LeftDaughters], CRLF, DaughtersList(c),
           FullBrotherTexts[ResiduaryBesideDaughters], ResiduaryTail);
  } else if (c.FullSisters > 0) {
    BecomeResiduary(c, FullBrotherHeir, FullBrothersWithSisters);
    Report(c, FullBrotherHeir, FullBrotherTexts[LeftFullSister], FullBrotherTexts[ResiduaryWithSister],
           ResiduaryTail);
  } else {
    BecomeResiduary(c, FullBrotherHeir, FullBrothersAlone);
    Report(c, FullBrotherHeir, FullBrotherTexts[LeftNobodyNearer], FullBrotherTexts[ResiduaryAlone],
           ResiduaryTail);
  }
  ShowResult(c, screen, FullBrotherHeir, Join(c.FullBrotherReport, "  ", FractionOf(c, FullBrotherHeir)));
}

void ShareOfFullSister(CaseRecord& c, CaseScreen& screen) {
  using enum FullSisterText;
  screen.Label2.Caption = "FULL SISTER'S SHARE";
  if (c.FullSisters <= 0) {
    TakeNothing(c, FullSisterHeir);
    Report(c, FullSisterHeir, FullSisterTexts[NoFullSister], NilTail);
  } else if (HasMaleExcluder(c)) {
    TakeNothing(c, FullSisterHeir);
    Report(c, FullSisterHeir, FullSisterTexts[LeftExcluders], ExcludingList(c), FullSisterTexts[Excluded],
           NilTail);
  } else if (HasFemaleDescendant(c) && c.FullBrothers > 0) {
    BecomeResiduary(c, FullSisterHeir, FullSiblingsBesideDaughters);
    Report(c, FullSisterHeir, FullSisterTexts[LeftDaughtersAndBrother], CRLF, DaughtersList(c),
           FullSisterTexts[ResiduaryWithBrotherBesideDaughters], ResiduaryTail);
  } else if (HasFemaleDescendant(c)) {
    BecomeResiduary(c, FullSisterHeir, FullSisterBesideDaughters);
    Report(c, FullSisterHeir, FullSisterTexts[LeftDaughters], FullSisterTexts[ResiduaryBesideDaughters],
           ResiduaryTail);
  } else if (c.FullBrothers > 0) {
    BecomeResiduary(c, FullSisterHeir, FullBrothersWithSisters);
    Report(c, FullSisterHeir, FullSisterTexts[LeftFullBrother], FullSisterTexts[ResiduaryWithBrother],
           ResiduaryTail);
  } else if (c.FullSisters > 1) {
    Take(c, FullSisterHeir, 2, 3);
    Report(c, FullSisterHeir, FullSisterTexts[LeftNobodyNearer], FullSisterTexts[SharerOfHalfOrTwoThirds]);
  } else {
    Take(c, FullSisterHeir, 1, 2);
    Report(c, FullSisterHeir, FullSisterTexts[LeftNobodyNearer], FullSisterTexts[SharerOfHalfOrTwoThirds]);
  }
  const bool sharer = c.FractionNum(FullSisterHeir) > 0;
  ShowResult(c, screen, FullSisterHeir, Join(c.FullSisterReport, sharer ? SharerAddition(c) : ""));
}

}  // namespace qismora
