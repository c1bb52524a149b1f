#include "case/RunSharer.h"

#include "case/LoadCase.h"

namespace qismora {

void RunSharer(CaseRecord& c, CaseScreen& screen, Rule rule) {
  if (!c.CaseLoaded) LoadCase(c, screen);
  if (c.InputFailed) {
    c.InputFailed = false;
    screen.Text2.Text = "\r\nINPUT ERROR";
    return;
  }
  screen.Text2.Text = "";
  rule(c, screen);
}

}  // namespace qismora
