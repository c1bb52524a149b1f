#pragma once

#include "case/LoadCase.h"

namespace qismora {

/// A rule decides the standing of one kind of heir from the counts, stores amount, fraction and report, and
/// fills the result panel.
using Rule = void (*)(CaseRecord&, CaseScreen&);

/// The wrapper through which a command calls a rule. It loads the case unless a run has done so. After a hard
/// failure it shows the text "INPUT ERROR" and does not call the rule.
template <Rule ShareOf>
void RunSharer(CaseRecord& c, CaseScreen& screen) {
  if (!c.CaseLoaded) LoadCase(c, screen);
  if (c.InputFailed) {
    c.InputFailed = false;
    screen.Text2.Text = "\r\nINPUT ERROR";
    return;
  }
  screen.Text2.Text = "";
  ShareOf(c, screen);
}

}  // namespace qismora
