#include "case/Conditions.h"
#include "case/Shares.h"
#include "case/narratives/MotherTexts.h"
#include "rules/Rules.h"

// The mother is never a residuary. The third of the remainder calls the spouse's rule, whose heading then
// stays on the screen above the mother's narrative. Brothers and sisters of every kind reduce her share; the
// list in her narrative shows only the full ones.

namespace qismora {

namespace {

/// Whether two or more brothers or sisters of any kind are alive. Both sums are always computed: counts that
/// are too large must overflow.
bool HasTwoSiblings(const CaseRecord& c) {
  const Integer full = c.FullSisters + c.FullBrothers;
  const Integer all =
      c.FullBrothers + c.FullSisters + c.ConsBrothers + c.ConsSisters + c.UterineBrothers + c.UterineSisters;
  return full > 1 || all > 1 || c.FullBrothers > 1 || c.FullSisters > 1 || c.ConsBrothers > 1 ||
         c.ConsSisters > 1 || c.UterineBrothers > 1 || c.UterineSisters > 1;
}

/// One third of what the spouse leaves (ruling of Umar, al-Umariyyatan). The spouse's amount is rounded to a
/// whole number first.
void TakeThirdOfRemainder(CaseRecord& c, CaseScreen& screen) {
  // If both counts were positive, the wives would decide.
  HeirKind spouse = HusbandHeir;
  if (c.Husband > 0) {
    ShareOfHusband(c, screen);
    c.SpouseShareWhole = RoundTo<Long>(c.HusbandShare);
  }
  if (c.Wives > 0) {
    ShareOfWife(c, screen);
    c.SpouseShareWhole = RoundTo<Long>(c.WifeShare);
    spouse = WifeHeir;
  }
  c.MotherShare = (c.NetEstate - c.SpouseShareWhole) / 3;
  SetFraction(c, MotherHeir, c.FractionDen(spouse) - c.FractionNum(spouse), c.FractionDen(spouse) * 3);
}

void DecideMother(CaseRecord& c, CaseScreen& screen) {
  using enum MotherSixthText;
  using enum MotherThirdOfRestText;
  if (HasTwoSiblings(c) || HasDescendant(c)) {
    Take(c, MotherHeir, 1, 6);
    Report(c, MotherHeir, MotherSixthTexts[LeftTheseHeirs], "\r\nSons = ", c.Sons,
           "\r\nGrand Sons = ", c.GrandSons, "\r\nGreat grand Sons = ", c.GtGrandSons,
           "\r\nDaughters = ", c.Daughters, "\r\nGrand Daughters = ", c.GrandDaughters,
           "\r\nGreat grand Daughters = ", c.GtGrandDaughters, "\r\nBrothers = ", c.FullBrothers,
           "\r\nSisters = ", c.FullSisters, CRLF, MotherSixthTexts[SixthBesideThem], "\r\n\t",
           F(c.MotherShare));
  } else if (c.Husband <= 0 && c.Wives <= 0) {
    Take(c, MotherHeir, 1, 3);
    Report(c, MotherHeir, MotherThirdNoSpouseText, TAB, F(c.MotherShare));
  } else if (c.Father <= 0) {
    Take(c, MotherHeir, 1, 3);
    Report(c, MotherHeir, MotherThirdNoFatherText, TAB, F(c.MotherShare));
  } else {
    TakeThirdOfRemainder(c, screen);
    Report(c, MotherHeir, MotherThirdOfRestTexts[ThirdOfRemainder], CRLF,
           MotherThirdOfRestTexts[Abbreviations], "\r\n\t= (", GeneralNumber(c.NetEstate), " - ",
           F(c.SpouseShareWhole), ")/3\r\n\t= ", F(c.MotherShare));
  }
}

}  // namespace

void ShareOfMother(CaseRecord& c, CaseScreen& screen) {
  screen.Label2.Caption = "MOTHER'S SHARE";
  SetFraction(c, MotherHeir, Integer(0), Integer(1));  // stays if a count or the amount overflows
  if (c.Mother == 0) {
    TakeNothing(c, MotherHeir);
    Report(c, MotherHeir, NoMotherText);
    ShowResult(c, screen, MotherHeir, Join(NoMotherText, "\r\n\r\n\tNIL  ", FractionOf(c, MotherHeir)));
  } else {
    DecideMother(c, screen);
    ShowResult(c, screen, MotherHeir, Join(c.MotherReport, "  ", FractionOf(c, MotherHeir)));
  }
}

}  // namespace qismora
