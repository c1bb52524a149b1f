#include "case/Conditions.h"
#include "case/Shares.h"
#include "case/narratives/SpouseTexts.h"
#include "rules/Rules.h"

// The spouse always takes a fixed share; a descendant halves it. The texts of the two rules differ in the
// places of the fraction and of a line break. The text about great grandchildren takes the fraction from the
// slot for a wife only. Fixed wording; do not correct.

namespace qismora {

namespace {

std::string DescendantsList(const CaseRecord& c) {
  return Join("SONS = ", c.Sons, CRLF, "DAUGHTERS = ", c.Daughters, CRLF, "GRAND SONS = ", c.GrandSons, CRLF,
              "GRAND DAUGHTERS = ", c.GrandDaughters, CRLF, "GREAT GRAND SONS = ", c.GtGrandSons, CRLF,
              "GREAT GRAND DAUGHTERS = ", c.GtGrandDaughters);
}

/// Decides the wives' share and returns the sentence that explains it.
std::string_view DecideWife(CaseRecord& c) {
  Take(c, WifeHeir, 1, HasDescendant(c) ? 8 : 4);
  if (c.Sons > 0 || c.Daughters > 0) return WifeWithChildrenText;
  if (c.GrandSons > 0 || c.GrandDaughters > 0) return WifeWithGrandChildrenText;
  if (!HasDescendant(c)) return WifeNoDescendantText;
  return c.WifeWithGtGrandChildrenText =
             Join("\r\nIn the case under examination, the deceased male has left the following:\r\n\r\n",
                  DescendantsList(c),
                  "\r\n\r\nso the share of wife/ wives in the net estate wealth will be one eighth (1/",
                  c.FractionDen(WifeHeir), ") i.e.");
}

/// Decides the husband's share and returns the sentence that explains it.
std::string_view DecideHusband(CaseRecord& c) {
  Take(c, HusbandHeir, 1, HasDescendant(c) ? 4 : 2);
  if (c.Sons > 0 || c.Daughters > 0) return HusbandWithChildrenText;
  if (c.GrandSons > 0 || c.GrandDaughters > 0) return HusbandWithGrandChildrenText;
  if (!HasDescendant(c)) return HusbandNoDescendantText;
  return c.HusbandWithGtGrandChildrenText =
             Join("\r\nIn the case under examination, the deceased female has left the following:\r\n\r\n",
                  DescendantsList(c),
                  "\r\n\r\nso the share of husband in the net estate wealth will be one fourth (1/4) i.e.");
}

}  // namespace

void ShareOfWife(CaseRecord& c, CaseScreen& screen) {
  screen.Label2.Caption = "WIFE'S SHARE";
  if (c.Wives == 0) {
    TakeNothing(c, WifeHeir);
    Report(c, WifeHeir, NoWifeText);
    screen.Label3.Caption = F(c.WifeShare);
    screen.Text2.Text = Join(c.WifeReport, "\r\n\r\n\tNIL");
    return;
  }
  const std::string_view narrative = DecideWife(c);
  Report(c, WifeHeir, narrative, "\r\n\r\n\t", F(c.WifeShare));
  if (c.Wives > 1) {
    c.EachWifeShare = c.WifeShare / c.Wives;
    c.EachWifeText =
        Join("\r\nSince, the deceased has left ", c.Wives, " wives, so the share of each wife will be 1/",
             c.Wives, " of ", F(c.WifeShare), " i.e. \r\n\r\n\t", F(c.EachWifeShare));
    Append(c.WifeReport, "  ", FractionOf(c, WifeHeir), CRLF, c.EachWifeText);
  }
  ShowResult(c, screen, WifeHeir, Join(c.WifeReport, CRLF));
}

void ShareOfHusband(CaseRecord& c, CaseScreen& screen) {
  screen.Label2.Caption = "HUSBAND'S SHARE";
  if (screen.Combo1.ListIndex == Male) return;
  if (c.Husband == 0) {
    TakeNothing(c, HusbandHeir);
    Report(c, HusbandHeir, NoHusbandText);
    screen.Text2.Text = Join(c.HusbandReport, "\r\n\r\n\tNIL");
    screen.Label3.Caption = F(c.HusbandShare);
    return;
  }
  const std::string_view narrative = DecideHusband(c);
  Report(c, HusbandHeir, narrative, "\r\n\r\n\t", F(c.HusbandShare));
  ShowResult(c, screen, HusbandHeir, Join(c.HusbandReport, "  ", FractionOf(c, HusbandHeir)));
}

}  // namespace qismora
