#include "rules/Uterine.h"

#include "case/Conditions.h"
#include "case/Shares.h"
#include "case/narratives/UterineTexts.h"

// Half siblings on the mother's side are never residuaries. One alone takes a sixth, more share a third by
// heads, male and female alike. Any descendant and any male ascendant excludes them. The two rules mirror
// each other and differ in a few words, which is why each stands by itself: the brother's group text says
// "each" though its figure is the group's.

namespace qismora {

namespace {

bool IsExcluded(const CaseRecord& c) { return HasDescendant(c) || HasFatherLine(c); }

std::string ExcludingHeirs(const CaseRecord& c) {
  return Join("Son = ", c.Sons, CRLF, "Daughter = ", c.Daughters, CRLF, "Son's Son = ", c.GrandSons, CRLF,
              "Son's Daughter = ", c.GrandDaughters, CRLF, "Son's Son's Son = ", c.GtGrandSons, CRLF,
              "Son's Son's Daughter = ", c.GtGrandDaughters, CRLF, "Father = ", c.Father, CRLF,
              "Father's Father = ", c.GrandFather, CRLF, "Father's Father's Father = ", c.GtGrandFather,
              CRLF);
}

/// The heads of one sex among all who share the third.
struct Heads {
  Integer Own;
  Integer All;
};

Double ShareByHeads(const CaseRecord& c, Heads heads) { return heads.Own * c.NetEstate / (3 * heads.All); }

void DecideUterineSister(CaseRecord& c) {
  if (c.UterineSisters <= 0) {
    c.UterineSisterShare = 0;
    SetFraction(c, UterineSisterSlot, 0, 1);
    c.UterineSisterReport = Join(UterineSisterTexts[4], CRLF, CRLF, TAB, "NIL");
    return;
  }
  if (IsExcluded(c)) {
    c.UterineSisterShare = 0;
    SetFraction(c, UterineSisterSlot, 0, 1);
    c.UterineSisterReport =
        Join(UterineSisterTexts[0], ExcludingHeirs(c), UterineSisterTexts[1], CRLF, TAB, "NIL");
    return;
  }
  if (c.UterineBrothers > 0 || c.UterineSisters > 1) {
    const Heads heads = {c.UterineSisters, c.UterineSisters + c.UterineBrothers};
    c.UterineSisterShare = ShareByHeads(c, heads);
    SetFraction(c, UterineSisterSlot, heads.Own, 3 * heads.All);
    c.UterineSisterReport = Join(UterineSisterTexts[2], UterineSisterTexts[3], "\r\nOne third of estate is ",
                                 F(c.NetEstate / 3), " and since, number of uterine brother(s) is ",
                                 c.UterineBrothers, " and number of uterine sister(s) is ", c.UterineSisters,
                                 ". Hence, share of all uterine sisters shall be ", c.UterineSisters, "/(",
                                 c.UterineSisters, "+", c.UterineBrothers, ") = ", c.UterineSisters, "/",
                                 heads.All, " of 1/3 i.e. ", CRLF, CRLF, TAB, F(c.UterineSisterShare), CRLF);
    return;
  }
  c.UterineSisterShare = c.NetEstate / 6;
  SetFraction(c, UterineSisterSlot, 1, 6);
  c.UterineSisterReport = Join(UterineSisterTexts[5], UterineSisterTexts[6], CRLF, CRLF, TAB,
                               F(c.UterineSisterShare), FractionText(c, UterineSisterSlot));
}

void DecideUterineBrother(CaseRecord& c) {
  if (c.UterineBrothers <= 0) {
    c.UterineBrotherShare = 0;
    SetFraction(c, UterineBrotherSlot, 0, 1);
    c.UterineBrotherReport = Join(UterineBrotherTexts[4], CRLF, CRLF, TAB, "NIL");
    return;
  }
  if (IsExcluded(c)) {
    c.UterineBrotherShare = 0;
    SetFraction(c, UterineBrotherSlot, 0, 1);
    c.UterineBrotherReport =
        Join(UterineBrotherTexts[0], ExcludingHeirs(c), UterineBrotherTexts[1], CRLF, TAB, "NIL");
    return;
  }
  if (c.UterineSisters > 0 || c.UterineBrothers > 1) {
    const Heads heads = {c.UterineBrothers, c.UterineSisters + c.UterineBrothers};
    c.UterineBrotherShare = ShareByHeads(c, heads);
    SetFraction(c, UterineBrotherSlot, heads.Own, 3 * heads.All);
    c.UterineBrotherReport =
        Join(UterineBrotherTexts[2], UterineBrotherTexts[3], "\r\nOne third of estate is ",
             F(c.NetEstate / 3), " and since, number of uterine sister(s) is ", c.UterineSisters,
             " and number of uterine brother(s) is ", c.UterineBrothers,
             ". Hence, share of each uterine brother shall be ", c.UterineBrothers, "/(", c.UterineSisters,
             "+", c.UterineBrothers, ") = ", c.UterineBrothers, "/", heads.All, " of 1/3 i.e. ", CRLF, CRLF,
             TAB, F(c.UterineBrotherShare), CRLF);
    return;
  }
  c.UterineBrotherShare = c.NetEstate / 6;
  SetFraction(c, UterineBrotherSlot, 1, 6);
  c.UterineBrotherReport = Join(UterineBrotherTexts[7], UterineBrotherTexts[8], CRLF, CRLF, TAB,
                                F(c.UterineBrotherShare), FractionText(c, UterineBrotherSlot));
}

}  // namespace

void ShareOfUterineSister(CaseRecord& c, CaseScreen& screen) {
  screen.Label2.Caption = "UTERINE SISTER'S SHARE";
  DecideUterineSister(c);
  screen.Text2.Text = c.UterineSisterReport;
  screen.Label3.Caption = AmountLine(c, c.UterineSisterShare, UterineSisterSlot);
}

void ShareOfUterineBrother(CaseRecord& c, CaseScreen& screen) {
  screen.Label2.Caption = "UTERINE BROTHER'S SHARE";
  DecideUterineBrother(c);
  screen.Text2.Text = c.UterineBrotherReport;
  screen.Label3.Caption = AmountLine(c, c.UterineBrotherShare, UterineBrotherSlot);
}

}  // namespace qismora
