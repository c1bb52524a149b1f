#include "aulradd/Sufficiency.h"

#include "aulradd/Unitize.h"
#include "case/Conditions.h"
#include "case/LoadCase.h"
#include "case/ResiduaryFlags.h"
#include "residue/ClassII.h"

namespace qismora {

namespace {

constexpr const char* aulMessage =
    "THERE IS NO SUFFICIENT ESTATE TO ALLOT FULL SHARES TO SHARERS\r\n"
    "APPLY 'AUL' DOCTRINE TO GET ACTUAL SHARES OF QURANIC SHARERS (Zawil-Farooz).\r\n"
    "Press the command button 'Aul/Radd' above to get actual shares of Quranic Sharers.";

constexpr const char* aulBesideResiduaryMessage =
    "You have reached to a condition where there are Residuaries (Asaba't) BUT the residue\r\n"
    "is negative. So, the share of Residuaries (Asaba't) will be Zero AND the Doctrine of AUL\r\n"
    "has to be applied to make proper distribution among Quranic Sharers.\r\n"
    "\r\n"
    "APPLY 'AUL' DOCTRINE TO GET ACTUAL SHARES OF QURANIC SHARERS (Zawil-Farooz).\r\n"
    "Press the command button 'Aul/Radd' above to get actual shares of Quranic Sharers.";

constexpr const char* raddMessage =
    "   SOME ESTATE IS STILL LEFT AFTER ALLOTTING SHARES TO SHARERS\r\n"
    " APPLY 'RADD' DOCTRINE TO GET ACTUAL SHARES OF QURANIC SHARERS (Zawil-Farooz).\r\n"
    "Press the 'Aul/Radd' sub-menu above to get actual shares of Quranic Sharers (Zawil-Farooz).";

bool HasFlag(const CaseRecord& c) {
  for (int i = SonsAlone; i <= SonsDaughterWithLowerSonsSon; ++i) {
    if (c.Res(i)) return true;
  }
  return c.Res(ClassIITicked);
}

bool HasTickedHeir(const CaseRecord& c) {
  for (int i = 0; i < c.ClassIIFlag.Size; ++i) {
    if (c.ClassIIFlag(i) != 0) return true;
  }
  return false;
}

/// Shows the outcome, unless a full report is being made, and the command that applies the doctrine.
void Offer(CaseRecord& c, CaseScreen& screen, int state, const char* message) {
  if (!c.ReportToFile) screen.Ports.Boxes.Inform(BoxStyle::Warning, message);
  screen.AulRadd.Visible = true;
  c.AulRaddState = Integer(state);
}

}  // namespace

void SufficiencyTest(CaseRecord& c, CaseScreen& screen) {
  // In this order, which is not that of Heirs: a floating-point sum depends on it, and the residue is
  // compared with 0. The brothers have no fixed share, so their amounts are 0; only the full one's is in the
  // sum.
  c.TotalQShares = c.WifeShare + c.HusbandShare + c.FatherShare + c.MotherShare + c.GrandMotherShare +
                   c.DaughterShare + c.SonsDaughterShare + c.SonsSonsDaughterShare + c.FullSisterShare +
                   c.FullBrotherShare + c.ConsSisterShare + c.UterineSisterShare + c.UterineBrotherShare;
  c.QSharesLessSpouse = c.TotalQShares - c.HusbandShare - c.WifeShare;
  c.Residue = c.NetEstate - c.TotalQShares;
  UnitizeShares(c, screen);
  c.AulRaddState = Integer(NoAdjustment);

  if (c.Residue < 0 && c.TotalQShares > 0) {
    if (HasNoMaleDescendant(c) && !HasFlag(c)) return Offer(c, screen, Aul, aulMessage);
    if (HasMaleDescendant(c) || HasFlag(c))
      return Offer(c, screen, AulBesideResiduary, aulBesideResiduaryMessage);
    return;
  }
  if (c.Residue > 0 && c.QSharesLessSpouse > 0 && HasNoMaleDescendant(c) && !HasFlag(c)) {
    ReadClassIIChecks(c, screen);
    if (HasTickedHeir(c)) {
      NameClassIIHeir(c);
      c.AulRaddState = Integer(SurplusToClassII);
      return;
    }
    Offer(c, screen, Radd, raddMessage);
    screen.AulRad.Enabled = true;
  }
}

}  // namespace qismora
