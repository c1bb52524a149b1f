#include "aulradd/AulRadd.h"

#include "aulradd/Distribution.h"
#include "aulradd/Unitize.h"
#include "base/Dates.h"
#include "base/Text.h"
#include "case/ResiduaryFlags.h"

// Aul reduces every share in proportion if the shares exceed the estate. Radd increases them in proportion if
// no residuary takes the surplus; the spouse keeps the plain share.

namespace qismora {

namespace {

struct ResiduaryMessage {
  ResiduaryFlag Flag;
  const char* Text;
};

/// Who the residuary is, in the order of the flags.
constexpr ResiduaryMessage residuaryMessages[] = {
    {SonsAlone, "Son is Residuary (Asaba')."},
    {SonsWithDaughters, "Daughter is Residuary (Asaba')."},
    {FatherAsResiduary, "Ultimate Father is Residuary (Asaba')."},
    {FatherAsSharerAndResiduary, "Ultimate Father is Residuary (Asaba')."},
    {SonsDaughterWithSonsSon, "Son's Daughter is Residuary (Asaba') with Equal son's son/ Lower son's son."},
    {FullSiblingsBesideDaughters,
     "Full Sister is Residuary (Asaba') with Full Brother and descendant daughters."},
    {FullSisterBesideDaughters, "Full Sister is Residuary (Asaba') with descendant daughters."},
    {SonsSonsAlone, "Son's Son is Residuary (Asaba')."},
    {FullBrothersWithSisters, "Full Sister is Residuary (Asaba') with Full Brother."},
    {FullBrothersAlone, "Full Brother is Residuary (Asaba')."},
    {ConsSisterBesideDaughters, "Consanguine Sister is Residuary (Asaba') with descendant daughters"},
    {SonsSonsSonsAlone, "Son's Son's Son is Residuary (Asaba')."},
    {ConsBrothersWithSisters, "Consanguine Sister is Residuary (Asaba') with Consanguine Brother."},
    {ConsSiblingsBesideDaughters,
     "Consanguine Sister is Residuary (Asaba') with Consanguine Brother and descendant daughters."},
    {ConsBrothersAlone, "Consanguine Brother is Residuary (Asaba')."},
    {SonsDaughterWithSonsSonBesideDaughters, "Son's Daughter is Residuary (Asaba') with equal son's son."},
    {SonsSonsDaughterWithSonsSonsSon,
     "Son's Son's Daughter is Residuary (Asaba') with equal son's son (SSS)."},
    {SonsSonsDaughterBesideSonsDaughter,
     "Son's Son's Daughter is Residuary (Asaba') with equal son's son & Son's daughter (SSD+SSS+SD)."},
    {SonsDaughterWithLowerSonsSon, "Son's Son's son is Residuary (Asaba') with Son's daughter (SSS+SD)."},
};

/// Whether a class I residuary takes the residue, so that no doctrine applies. The user may ask who it is.
bool AskAboutResiduary(const CaseRecord& c, CaseScreen& screen) {
  int next = SonsAlone;
  for (const ResiduaryMessage& row : residuaryMessages) {
    next = row.Flag + 1;
    if (!c.Res(row.Flag)) continue;
    const Answer answer = screen.Ports.Boxes.Show(
        BoxStyle::Warning, BoxButtons::YesNoCancel,
        "Doctrine of Aul and Radd applies only in absence of Residuaries (Asaba't).\r\n"
        "The case is not free from Residuary (Asaba'). Want to know the Residuaries (Asaba't)?");
    if (answer == Answer::Yes) screen.Ports.Boxes.Inform(BoxStyle::Information, row.Text);
    return true;
  }
  // The loop ends one flag before that of class II, so this message is never shown. It is kept as one of the
  // fixed texts. Showing it would add a message to every surplus that goes to class II.
  if (next == ClassIITicked) {
    screen.Ports.Boxes.Inform(
        BoxStyle::Information,
        "RESIDUARY (ASABA') IS AMONG SECOND CLASS RESIDUARIES [ASABA'T] (e.g UNCLE etc.).");
  }
  return false;
}

void ApplyDoctrine(CaseRecord& c, CaseScreen& screen) {
  if (c.AulRaddState == NoAdjustment) {
    screen.Ports.Boxes.Inform(BoxStyle::Information, "AUL/RADD NOT APPLICABLE IN THIS CASE.");
    return;
  }
  screen.Frame5.Visible = false;
  const bool classified =
      c.AulRaddState == AulBesideResiduary || c.AulRaddState == Aul || c.AulRaddState == Radd;
  if (!classified && AskAboutResiduary(c, screen)) return;
  if (c.TotalQShares == 0) return;

  // Nothing reads the four excess values, but an overflow of theirs ends the command before any text is
  // built.
  c.AulFactor = c.Residue / c.TotalQShares + 1.0;
  c.AulExcessNum = c.QSharesNum * c.ResidueNum - c.QSharesDen * c.ResidueNum;
  c.AulExcessDen = c.QSharesNum * c.ResidueNum;
  c.RaddFactor = c.Residue / c.QSharesLessSpouse + 1.0;
  c.RaddExcessNum = c.RaddNum * c.ResidueNum - c.RaddDen * c.ResidueNum;
  c.RaddExcessDen = c.RaddNum * c.ResidueNum;

  ReviseFractions(c);
  BuildAulRaddTexts(c, screen);
  const bool aul = c.Residue < 0;
  screen.Text3.Text =
      Join(aul ? c.SummaryText : c.RaddText, CRLF, CRLF, GeneratedBy(screen.Ports.Time.Now()), CRLF, CRLF);
  screen.Label2.Caption = aul ? "AUL DOCTRINE APPLIED" : "RADD DOCTRINE APPLIED";
  if (screen.Watch.DoctrineApplied) screen.Watch.DoctrineApplied();
}

}  // namespace

void RunAulRadd(CaseRecord& c, CaseScreen& screen) {
  try {
    ApplyDoctrine(c, screen);
  } catch (const Failure& failure) {
    if (failure.Number == DivisionByZero) {
      screen.Ports.Boxes.Inform(
          BoxStyle::Critical,
          "No Quranic Sharer is present, the Residue will go to Distant Kindred, if any.\r\n"
          "In case, there is no any Distant Kindred then only it will go to the Sharer.");
    }
    screen.AulRadd.Visible = true;
  }
}

}  // namespace qismora
