#include "case/ClearResults.h"

namespace qismora {

void ClearResults(CaseRecord& c, CaseScreen& screen) {
  for (Double* amount : {&c.HusbandShare, &c.WifeShare, &c.FatherShare, &c.MotherShare, &c.GrandMotherShare,
                         &c.DaughterShare, &c.SonsDaughterShare, &c.FullSisterShare, &c.FullBrotherShare,
                         &c.ConsSisterShare, &c.UterineSisterShare, &c.UterineBrotherShare,
                         // the residue
                         &c.Residue, &c.SonAmount, &c.DaughterResidue, &c.SonsDaughterResidue,
                         &c.EqualSonsSonResidue, &c.LowerSonsSonResidue, &c.FullBrotherResidue,
                         &c.FullSisterResidue, &c.ConsBrotherResidue, &c.ConsSisterResidue,
                         // the slots of the father line and of the true grandmothers
                         &c.FatherAmount, &c.GrandFatherAmount, &c.GtGrandFatherAmount,
                         &c.FathersMotherAmount, &c.GrandFathersMotherAmount, &c.FathersGrandMotherAmount,
                         &c.MothersMotherAmount, &c.MothersMothersMotherAmount}) {
    *amount = 0;
  }
  c.ClassIIAmount.Fill(0);

  screen.Text2.Text = "";
  screen.Text3.Text = "";
  screen.Label2.Caption = "";
  screen.Label3.Caption = "";

  c.Res.Fill(false);
  c.FractionNum.Fill(Integer(0));
  c.FractionDen.Fill(Integer(0));
}

}  // namespace qismora
