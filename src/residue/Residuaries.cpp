#include "residue/Residuaries.h"

#include "aulradd/Distribution.h"
#include "aulradd/Sufficiency.h"
#include "case/ClearResults.h"
#include "case/LoadCase.h"
#include "residue/ResiduaryDistribution.h"
#include "rules/Rules.h"

namespace qismora {

void RunAllSharers(CaseRecord& c, CaseScreen& screen) {
  LoadCase(c, screen);
  if (c.InputFailed) {
    c.InputFailed = false;
    return;
  }
  if (screen.Combo1.ListIndex == Male) RunWife(c, screen);
  if (screen.Combo1.ListIndex == Female) RunHusband(c, screen);
  ShareOfDaughters(c, screen);  // without its wrapper, which would only empty Text2 first
  RunUltimateFather(c, screen);
  RunMother(c, screen);
  RunGrandMother(c, screen);
  // The son's son's daughters read a flag that the son's daughters set.
  RunSonsDaughter(c, screen);
  RunSonsSonsDaughter(c, screen);
  RunFullBrother(c, screen);
  RunFullSister(c, screen);
  RunConsSister(c, screen);
  RunConsBrother(c, screen);
  RunUterineSister(c, screen);
  RunUterineBrother(c, screen);
}

void RunResiduaries(CaseRecord& c, CaseScreen& screen) {
  // A full report loads the case twice and counts it once.
  if (c.ReportToFile) c.ExecCount -= Long(1);
  screen.Frame5.Visible = false;
  ShowLongText(screen, true);
  c.CaseLoaded = true;
  ClearResults(c, screen);
  // After a hard failure of the load no rule runs, but all that follows does: it distributes by what the
  // record still holds. Transcripts test it.
  RunAllSharers(c, screen);
  SetGrandMotherGroup(c);
  SufficiencyTest(c, screen);
  BuildSharerSummary(c, screen);
  ResiduaryDistribution(c, screen);
  if (screen.Watch.Distributed) screen.Watch.Distributed();
  c.CaseLoaded = false;
}

}  // namespace qismora
