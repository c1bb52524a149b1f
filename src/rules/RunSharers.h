#pragma once

#include "case/RunSharer.h"
#include "case/SpouseShares.h"
#include "rules/Consanguine.h"
#include "rules/Daughters.h"
#include "rules/Father.h"
#include "rules/FullSiblings.h"
#include "rules/GrandMother.h"
#include "rules/Mother.h"
#include "rules/SonsDaughter.h"
#include "rules/SonsSonsDaughter.h"
#include "rules/Uterine.h"

namespace qismora {

// The wrapper of each rule: a command reaches the rule through it. The daughters are reached without theirs.
inline void RunWife(CaseRecord& c, CaseScreen& screen) { RunSharer(c, screen, ShareOfWife); }
inline void RunHusband(CaseRecord& c, CaseScreen& screen) { RunSharer(c, screen, ShareOfHusband); }
inline void RunUltimateFather(CaseRecord& c, CaseScreen& screen) { RunSharer(c, screen, ShareOfFather); }
inline void RunMother(CaseRecord& c, CaseScreen& screen) { RunSharer(c, screen, ShareOfMother); }
inline void RunGrandMother(CaseRecord& c, CaseScreen& screen) { RunSharer(c, screen, ShareOfGrandMother); }
inline void RunSon(CaseRecord& c, CaseScreen& screen) { RunSharer(c, screen, ShareOfSon); }
inline void RunDaughters(CaseRecord& c, CaseScreen& screen) { RunSharer(c, screen, ShareOfDaughters); }
inline void RunSonsDaughter(CaseRecord& c, CaseScreen& screen) { RunSharer(c, screen, ShareOfSonsDaughter); }
inline void RunSonsSonsDaughter(CaseRecord& c, CaseScreen& screen) {
  RunSharer(c, screen, ShareOfSonsSonsDaughter);
}
inline void RunFullBrother(CaseRecord& c, CaseScreen& screen) { RunSharer(c, screen, ShareOfFullBrother); }
inline void RunFullSister(CaseRecord& c, CaseScreen& screen) { RunSharer(c, screen, ShareOfFullSister); }
inline void RunConsSister(CaseRecord& c, CaseScreen& screen) { RunSharer(c, screen, ShareOfConsSister); }
inline void RunConsBrother(CaseRecord& c, CaseScreen& screen) { RunSharer(c, screen, ShareOfConsBrother); }
inline void RunUterineSister(CaseRecord& c, CaseScreen& screen) {
  RunSharer(c, screen, ShareOfUterineSister);
}
inline void RunUterineBrother(CaseRecord& c, CaseScreen& screen) {
  RunSharer(c, screen, ShareOfUterineBrother);
}

}  // namespace qismora
