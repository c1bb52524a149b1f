#include "case/Shares.h"
#include "case/narratives/SonsDaughterTexts.h"
#include "case/narratives/SonsSonsDaughterTexts.h"
#include "rules/Rules.h"

// One generation below the son's daughters. Beside a daughter and a son's son's son she is a residuary with
// an empty narrative. Two or more son's daughters exclude her even beside a son's son's son.

namespace qismora {

namespace {

/// ClearResults does not clear her amount, so it is set to 0 here.
void BecomeResiduary(CaseRecord& c, ResiduaryFlag flag) {
  TakeNothing(c, SonsSonsDaughterHeir);
  c.Res(flag) = true;
}

/// The amount of each. The texts spell "each" in two ways. Fixed wording; do not correct.
std::string EachShare(const CaseRecord& c, const char* each) {
  return Join("\r\n\r\nNumber of Son's son's daughter being ", c.GtGrandDaughters, ", Share of ", each,
              " Son's son's daughter will be:\r\n\r\n\t", F(c.SonsSonsDaughterShare / c.GtGrandDaughters));
}

}  // namespace

/// A run does not reach the second and third row: without a daughter, the son's daughters set the flag
/// SonsDaughterWithLowerSonsSon only if no son's son's daughter is alive. Both rows are kept as part of the
/// rule; "Re-Write" stands where a narrative is missing. Fixed wording; do not correct.
void ShareOfSonsSonsDaughter(CaseRecord& c, CaseScreen& screen) {
  using enum SonsSonsDaughterText;
  screen.Label2.Caption = "GRANDSON'S DAUGHTER SHARE";
  constexpr std::string_view emptyText =
      SonsDaughterResiduaryTexts[SonsDaughterResiduaryText::ForSonsSonsDaughter];
  if (c.GtGrandDaughters <= 0) {
    TakeNothing(c, SonsSonsDaughterHeir);
    Report(c, SonsSonsDaughterHeir, SonsSonsDaughterTexts[NoSonsSonsDaughter]);
  } else if (c.Res(SonsDaughterWithLowerSonsSon) && c.Daughters == 0 && c.GtGrandSons <= 0) {
    // Share, fraction and report stay as they were.
  } else if (c.Res(SonsDaughterWithLowerSonsSon) && c.Daughters == 0) {
    BecomeResiduary(c, SonsSonsDaughterBesideSonsDaughter);
    c.Res(SonsDaughterWithLowerSonsSon) = false;
    Report(c, SonsSonsDaughterHeir, "Re-Write", emptyText);
  } else if (c.Sons > 0 || c.GrandSons > 0) {
    TakeNothing(c, SonsSonsDaughterHeir);
    Report(c, SonsSonsDaughterHeir, SonsSonsDaughterTexts[ExcludedBySons]);
  } else if (c.Daughters > 0 && c.GrandDaughters > 0) {
    TakeNothing(c, SonsSonsDaughterHeir);
    Report(c, SonsSonsDaughterHeir, SonsSonsDaughterTexts[ExcludedByDaughterAndSonsDaughter]);
  } else if (c.Daughters > 0 && c.GtGrandSons > 0) {
    BecomeResiduary(c, SonsSonsDaughterWithSonsSonsSon);
    Report(c, SonsSonsDaughterHeir, emptyText);
  } else if (c.Daughters > 0) {
    Take(c, SonsSonsDaughterHeir, 1, 6);
    Report(c, SonsSonsDaughterHeir, SonsSonsDaughterTexts[SixthBesideDaughter], TAB,
           AmountLine(c, SonsSonsDaughterHeir), EachShare(c, "each"));
  } else if (c.GrandDaughters == 1 && c.GtGrandSons > 0) {
    BecomeResiduary(c, SonsSonsDaughterWithSonsSonsSon);
    Report(c, SonsSonsDaughterHeir, SonsSonsDaughterTexts[ResiduaryBesideSonsDaughter]);
  } else if (c.GrandDaughters == 1) {
    Take(c, SonsSonsDaughterHeir, 1, 6);
    Report(c, SonsSonsDaughterHeir, SonsSonsDaughterSixthText, SonsSonsDaughterTexts[SixthBesideSonsDaughter],
           TAB, AmountLine(c, SonsSonsDaughterHeir));
  } else if (c.GrandDaughters >= 2) {
    TakeNothing(c, SonsSonsDaughterHeir);
    Report(c, SonsSonsDaughterHeir, SonsSonsDaughterTexts[ExcludedBySonsDaughters], "  ",
           FractionOf(c, SonsSonsDaughterHeir));
  } else if (c.GtGrandSons > 0) {
    BecomeResiduary(c, SonsSonsDaughterWithSonsSonsSon);
    Report(c, SonsSonsDaughterHeir, SonsSonsDaughterTexts[ResiduaryWithSonsSonsSon]);
  } else if (c.GtGrandDaughters == 1) {
    Take(c, SonsSonsDaughterHeir, 1, 2);
    Report(c, SonsSonsDaughterHeir, SonsSonsDaughterTexts[HalfAlone], AmountLine(c, SonsSonsDaughterHeir));
  } else {
    Take(c, SonsSonsDaughterHeir, 2, 3);
    Report(c, SonsSonsDaughterHeir, SonsSonsDaughterTexts[TwoThirdsTogether],
           AmountLine(c, SonsSonsDaughterHeir), EachShare(c, "EACH"));
  }
  ShowResult(c, screen, SonsSonsDaughterHeir);
}

}  // namespace qismora
