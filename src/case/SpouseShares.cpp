#include "case/SpouseShares.h"

#include "case/Shares.h"
#include "case/narratives/SpouseTexts.h"

// The spouse takes a fixed share beside everybody; a descendant of any line halves it. What differs between
// the two rules is kept: where the bracket with the fraction stands, where a line break does, and that the
// fraction in the text on great grandchildren is read from the slot for a wife and fixed for a husband.

namespace qismora {

namespace {

std::string DescendantsList(const CaseRecord& c) {
  return Join("SONS = ", c.Sons, CRLF, "DAUGHTERS = ", c.Daughters, CRLF, "GRAND SONS = ", c.GrandSons, CRLF,
              "GRAND DAUGHTERS = ", c.GrandDaughters, CRLF, "GREAT GRAND SONS = ", c.GtGrandSons, CRLF,
              "GREAT GRAND DAUGHTERS = ", c.GtGrandDaughters);
}

/// Decides the wives' share and returns the sentence that explains it.
std::string_view DecideWife(CaseRecord& c) {
  if (c.Sons > 0 || c.Daughters > 0) {
    c.WifeShare = c.NetEstate / 8;
    SetFraction(c, WifeSlot, 1, 8);
    return WifeWithChildrenText;
  }
  if (c.GrandSons > 0 || c.GrandDaughters > 0) {
    c.WifeShare = c.NetEstate / 8;
    SetFraction(c, WifeSlot, 1, 8);
    return WifeWithGrandChildrenText;
  }
  if (c.GtGrandSons > 0 || c.GtGrandDaughters > 0) {
    c.WifeShare = c.NetEstate / 8;
    SetFraction(c, WifeSlot, 1, 8);
    return c.WifeWithGtGrandChildrenText =
               Join("\r\nIn the case under examination, the deceased male has left the following:\r\n\r\n",
                    DescendantsList(c),
                    "\r\n\r\nso the share of wife/ wives in the net estate wealth will be one eighth (1/",
                    c.FractionDen(WifeSlot), ") i.e.");
  }
  c.WifeShare = c.NetEstate / 4;
  SetFraction(c, WifeSlot, 1, 4);
  return WifeNoDescendantText;
}

/// Decides the husband's share and returns the sentence that explains it.
std::string_view DecideHusband(CaseRecord& c) {
  if (c.Sons > 0 || c.Daughters > 0) {
    c.HusbandShare = c.NetEstate / 4;
    SetFraction(c, HusbandSlot, 1, 4);
    return HusbandWithChildrenText;
  }
  if (c.GrandSons > 0 || c.GrandDaughters > 0) {
    c.HusbandShare = c.NetEstate / 4;
    SetFraction(c, HusbandSlot, 1, 4);
    return HusbandWithGrandChildrenText;
  }
  if (c.GtGrandSons > 0 || c.GtGrandDaughters > 0) {
    c.HusbandShare = c.NetEstate / 4;
    SetFraction(c, HusbandSlot, 1, 4);
    return c.HusbandWithGtGrandChildrenText =
               Join("\r\nIn the case under examination, the deceased female has left the following:\r\n\r\n",
                    DescendantsList(c),
                    "\r\n\r\nso the share of husband in the net estate wealth will be one fourth (1/4) i.e.");
  }
  c.HusbandShare = c.NetEstate / 2;
  SetFraction(c, HusbandSlot, 1, 2);
  return HusbandNoDescendantText;
}

}  // namespace

void ShareOfWife(CaseRecord& c, CaseScreen& screen) {
  screen.Label2.Caption = "WIFE'S SHARE";
  if (c.Wives == 0) {
    c.WifeShare = 0;
    SetFraction(c, WifeSlot, 0, 1);
    c.WifeReport = NoWifeText;
    screen.Label3.Caption = F(c.WifeShare);
    screen.Text2.Text = Join(c.WifeReport, CRLF, CRLF, TAB, "NIL");
    return;
  }
  const std::string_view narrative = DecideWife(c);
  c.WifeReport = Join(narrative, CRLF, CRLF, TAB, F(c.WifeShare));
  if (c.Wives > 1) {
    c.EachWifeShare = c.WifeShare / c.Wives;
    c.EachWifeText =
        Join("\r\nSince, the deceased has left ", c.Wives, " wives, so the share of each wife will be 1/",
             c.Wives, " of ", F(c.WifeShare), " i.e. ", CRLF, CRLF, TAB, F(c.EachWifeShare));
    c.WifeReport = Join(c.WifeReport, FractionText(c, WifeSlot), CRLF, c.EachWifeText);
  }
  screen.Text2.Text = Join(c.WifeReport, CRLF);
  screen.Label3.Caption = AmountLine(c, c.WifeShare, WifeSlot);
}

void ShareOfHusband(CaseRecord& c, CaseScreen& screen) {
  screen.Label2.Caption = "HUSBAND'S SHARE";
  if (screen.Combo1.ListIndex == Male) return;
  if (c.Husband == 0) {
    c.HusbandShare = 0;
    SetFraction(c, HusbandSlot, 0, 1);
    c.HusbandReport = NoHusbandText;
    screen.Text2.Text = Join(c.HusbandReport, CRLF, CRLF, TAB, "NIL");
    screen.Label3.Caption = F(c.HusbandShare);
    return;
  }
  const std::string_view narrative = DecideHusband(c);
  c.HusbandReport = Join(narrative, CRLF, CRLF, TAB, F(c.HusbandShare));
  screen.Text2.Text = Join(c.HusbandReport, FractionText(c, HusbandSlot));
  screen.Label3.Caption = AmountLine(c, c.HusbandShare, HusbandSlot);
}

}  // namespace qismora
