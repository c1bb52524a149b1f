#include "case/Conditions.h"
#include "case/Shares.h"
#include "case/narratives/UterineTexts.h"
#include "rules/Rules.h"

// Half siblings on the mother's side are never residuaries. One alone takes a sixth; more share a third per
// head, male and female alike. Any descendant and any male ascendant excludes them. The two rules differ in a
// few words, so each is written out: the brothers' text says "each", though its figure is that of all of
// them.

namespace qismora {

namespace {

bool IsExcluded(const CaseRecord& c) { return HasDescendant(c) || HasMaleAscendant(c); }

std::string ExcludingHeirs(const CaseRecord& c) {
  return Join("Son = ", c.Sons, "\r\nDaughter = ", c.Daughters, "\r\nSon's Son = ", c.GrandSons,
              "\r\nSon's Daughter = ", c.GrandDaughters, "\r\nSon's Son's Son = ", c.GtGrandSons,
              "\r\nSon's Son's Daughter = ", c.GtGrandDaughters, "\r\nFather = ", c.Father,
              "\r\nFather's Father = ", c.GrandFather, "\r\nFather's Father's Father = ", c.GtGrandFather,
              CRLF);
}

}  // namespace

void ShareOfUterineSister(CaseRecord& c, CaseScreen& screen) {
  using enum UterineSisterText;
  screen.Label2.Caption = "UTERINE SISTER'S SHARE";
  if (c.UterineSisters <= 0) {
    TakeNothing(c, UterineSisterHeir);
    Report(c, UterineSisterHeir, UterineSisterTexts[NoUterineSister], "\r\n\r\n\tNIL");
  } else if (IsExcluded(c)) {
    TakeNothing(c, UterineSisterHeir);
    Report(c, UterineSisterHeir, UterineSisterTexts[LeftExcluders], ExcludingHeirs(c),
           UterineSisterTexts[Excluded], "\r\n\tNIL");
  } else if (c.UterineBrothers > 0 || c.UterineSisters > 1) {
    const Integer heads = c.UterineSisters + c.UterineBrothers;
    Take(c, UterineSisterHeir, c.UterineSisters, 3 * heads);
    Report(c, UterineSisterHeir, UterineSisterTexts[LeftOtherUterines], UterineSisterTexts[ThirdTogether],
           "\r\nOne third of estate is ", F(c.NetEstate / 3), " and since, number of uterine brother(s) is ",
           c.UterineBrothers, " and number of uterine sister(s) is ", c.UterineSisters,
           ". Hence, share of all uterine sisters shall be ", c.UterineSisters, "/(", c.UterineSisters, "+",
           c.UterineBrothers, ") = ", c.UterineSisters, "/", heads, " of 1/3 i.e. \r\n\r\n\t",
           F(c.UterineSisterShare), CRLF);
  } else {
    Take(c, UterineSisterHeir, 1, 6);
    Report(c, UterineSisterHeir, UterineSisterTexts[LeftOneUterineSister], UterineSisterTexts[SixthAlone],
           "\r\n\r\n\t", AmountLine(c, UterineSisterHeir));
  }
  ShowResult(c, screen, UterineSisterHeir);
}

void ShareOfUterineBrother(CaseRecord& c, CaseScreen& screen) {
  using enum UterineBrotherText;
  screen.Label2.Caption = "UTERINE BROTHER'S SHARE";
  if (c.UterineBrothers <= 0) {
    TakeNothing(c, UterineBrotherHeir);
    Report(c, UterineBrotherHeir, UterineBrotherTexts[NoUterineBrother], "\r\n\r\n\tNIL");
  } else if (IsExcluded(c)) {
    TakeNothing(c, UterineBrotherHeir);
    Report(c, UterineBrotherHeir, UterineBrotherTexts[LeftExcluders], ExcludingHeirs(c),
           UterineBrotherTexts[Excluded], "\r\n\tNIL");
  } else if (c.UterineSisters > 0 || c.UterineBrothers > 1) {
    const Integer heads = c.UterineSisters + c.UterineBrothers;
    Take(c, UterineBrotherHeir, c.UterineBrothers, 3 * heads);
    Report(c, UterineBrotherHeir, UterineBrotherTexts[LeftOtherUterines], UterineBrotherTexts[ThirdTogether],
           "\r\nOne third of estate is ", F(c.NetEstate / 3), " and since, number of uterine sister(s) is ",
           c.UterineSisters, " and number of uterine brother(s) is ", c.UterineBrothers,
           ". Hence, share of each uterine brother shall be ", c.UterineBrothers, "/(", c.UterineSisters, "+",
           c.UterineBrothers, ") = ", c.UterineBrothers, "/", heads, " of 1/3 i.e. \r\n\r\n\t",
           F(c.UterineBrotherShare), CRLF);
  } else {
    Take(c, UterineBrotherHeir, 1, 6);
    Report(c, UterineBrotherHeir, UterineBrotherTexts[LeftOneUterineBrother], UterineBrotherTexts[SixthAlone],
           "\r\n\r\n\t", AmountLine(c, UterineBrotherHeir));
  }
  ShowResult(c, screen, UterineBrotherHeir);
}

}  // namespace qismora
