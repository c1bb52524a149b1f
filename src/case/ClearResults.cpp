#include "case/ClearResults.h"

#include "case/Heirs.h"

namespace qismora {

void ClearResults(CaseRecord& c, CaseScreen& screen) {
  for (const Heir& heir : Heirs) {
    const bool survives =
        heir.Amount == &CaseRecord::SonsSonsDaughterShare || heir.Amount == &CaseRecord::ConsBrotherShare;
    if (!survives) c.*heir.Amount = 0;
  }
  for (Double* amount : {&c.Residue, &c.SonAmount, &c.DaughterResidue, &c.SonsDaughterResidue,
                         &c.EqualSonsSonResidue, &c.LowerSonsSonResidue, &c.FullBrotherResidue,
                         &c.FullSisterResidue, &c.ConsBrotherResidue, &c.ConsSisterResidue,
                         // the amounts of each male ascendant and each true grandmother
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
