#include "rules/Mother.h"

#include "case/Conditions.h"
#include "case/Shares.h"
#include "case/SpouseShares.h"
#include "case/narratives/MotherTexts.h"

// The mother never takes as a residuary. Her third of the rest calls the spouse's rule, which leaves its own
// heading on the screen; it stays there, over the mother's narrative. Consanguine and uterine brothers and
// sisters count against her, though the list in her narrative shows the full ones only.

namespace qismora {

namespace {

/// Two brothers or sisters of any kind. Both sums are Integer sums and are always made, so that counts out of
/// range are told as an overflow.
bool HasTwoSiblings(const CaseRecord& c) {
  const Integer full = c.FullSisters + c.FullBrothers;
  const Integer all =
      c.FullBrothers + c.FullSisters + c.ConsBrothers + c.ConsSisters + c.UterineBrothers + c.UterineSisters;
  return full > 1 || all > 1 || c.FullBrothers > 1 || c.FullSisters > 1 || c.ConsBrothers > 1 ||
         c.ConsSisters > 1 || c.UterineBrothers > 1 || c.UterineSisters > 1;
}

std::string HeirsList(const CaseRecord& c) {
  return Join(CRLF, "Sons = ", c.Sons, CRLF, "Grand Sons = ", c.GrandSons, CRLF,
              "Great grand Sons = ", c.GtGrandSons, CRLF, "Daughters = ", c.Daughters, CRLF,
              "Grand Daughters = ", c.GrandDaughters, CRLF, "Great grand Daughters = ", c.GtGrandDaughters,
              CRLF, "Brothers = ", c.FullBrothers, CRLF, "Sisters = ", c.FullSisters, CRLF);
}

void TakeThird(CaseRecord& c, std::string_view narrative) {
  c.MotherShare = c.NetEstate / 3;
  SetFraction(c, MotherSlot, 1, 3);
  c.MotherReport = Join(narrative, TAB, F(c.MotherShare));
}

/// One third of the estate less the spouse's amount, which is rounded to a whole number for it.
void TakeThirdOfRest(CaseRecord& c, CaseScreen& screen) {
  // Where both counts were positive, the wives would win.
  Slot spouse = HusbandSlot;
  if (c.Husband > 0) {
    ShareOfHusband(c, screen);
    c.SpouseShareWhole = RoundTo<Long>(c.HusbandShare);
  }
  if (c.Wives > 0) {
    ShareOfWife(c, screen);
    c.SpouseShareWhole = RoundTo<Long>(c.WifeShare);
    spouse = WifeSlot;
  }
  c.MotherShare = (c.NetEstate - c.SpouseShareWhole) / 3;
  SetFraction(c, MotherSlot, c.FractionDen(spouse) - c.FractionNum(spouse), c.FractionDen(spouse) * 3);
  c.MotherReport = Join(MotherThirdOfRestTexts[0], CRLF, MotherThirdOfRestTexts[1], CRLF, TAB, "= (",
                        GeneralNumber(c.NetEstate), " - ", F(c.SpouseShareWhole), ")/3", CRLF, TAB, "= ",
                        F(c.MotherShare));
}

void DecideMother(CaseRecord& c, CaseScreen& screen) {
  if (HasTwoSiblings(c) || HasDescendant(c)) {
    c.MotherShare = c.NetEstate / 6;
    SetFraction(c, MotherSlot, 1, 6);
    c.MotherReport =
        Join(MotherSixthTexts[0], HeirsList(c), MotherSixthTexts[1], CRLF, TAB, F(c.MotherShare));
  } else if (c.Husband <= 0 && c.Wives <= 0) {
    TakeThird(c, MotherThirdNoSpouseText);
  } else if (c.Father <= 0) {
    TakeThird(c, MotherThirdNoFatherText);
  } else {
    TakeThirdOfRest(c, screen);
  }
}

}  // namespace

void ShareOfMother(CaseRecord& c, CaseScreen& screen) {
  screen.Label2.Caption = "MOTHER'S SHARE";
  SetFraction(c, MotherSlot, 0, 1);
  if (c.Mother == 0) {
    c.MotherShare = 0;
    c.MotherReport = NoMotherText;
    screen.Text2.Text = Join(NoMotherText, CRLF, CRLF, TAB, "NIL", FractionText(c, MotherSlot));
  } else {
    DecideMother(c, screen);
    screen.Text2.Text = Join(c.MotherReport, FractionText(c, MotherSlot));
  }
  screen.Label3.Caption = AmountLine(c, c.MotherShare, MotherSlot);
}

}  // namespace qismora
