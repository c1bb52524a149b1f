#pragma once

#include "case/CaseRecord.h"
#include "case/CaseScreen.h"

namespace qismora {

/// A rule decides the standing of one kind of heir from the counts, stores fraction, amount and report,
/// and fills the result panel.
using Rule = void (*)(CaseRecord&, CaseScreen&);

/// The way from a command to one rule: loads the case unless a run has done so, turns a hard failure
/// into the text "INPUT ERROR", and calls the rule.
void RunSharer(CaseRecord& c, CaseScreen& screen, Rule rule);

}  // namespace qismora
