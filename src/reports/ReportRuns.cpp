#include "reports/ReportRuns.h"

#include <vector>

#include "aulradd/Sufficiency.h"
#include "base/Dates.h"
#include "base/Text.h"
#include "case/ClearResults.h"
#include "case/Conditions.h"
#include "case/LoadCase.h"
#include "reports/ReportHeaders.h"
#include "reports/SummarizedShares.h"
#include "rules/Rules.h"

namespace qismora {

namespace {

constexpr int anyGender = -1;

/// A section of a report: its heir, its title, the rule that writes it, the gender of the deceased that it
/// needs, and the texts before and after the narrative. The selected report has it only if the heir is alive.
struct SectionRow {
  HeirKind Heir;
  const char* Title;
  Rule Run;
  int Gender = anyGender;
  std::string_view Gap = "\r\n";
  std::string_view End = "\r\n\r\n";
};

// The case is loaded, so a rule and its wrapper differ only if the rule fails: a wrapper has emptied Text2 by
// then, without it the narrative of the section before stays there.
constexpr SectionRow sections[] = {
    {WifeHeir, "WIFE'S SHARE", RunWife, Male, "\r\n", ""},
    {HusbandHeir, "HUSBAND'S SHARE", RunHusband, Female, ""},
    {DaughterHeir, "DAUGHTER'S SHARE", ShareOfDaughters},
    {FatherHeir, "ULTIMATE FATHER'S SHARE", RunUltimateFather},
    {MotherHeir, "MOTHER'S SHARE", RunMother},
    {GrandMotherHeir, "TRUE GRAND MOTHER'S SHARE", RunGrandMother},
    {SonsDaughterHeir, "SON'S DAUGHTER'S SHARE", ShareOfSonsDaughter},
    {SonsSonsDaughterHeir, "GRANDSON'S DAUGHTER'S SHARE", ShareOfSonsSonsDaughter},
    {FullBrotherHeir, "FULL BROTHER'S SHARE", ShareOfFullBrother},
    {FullSisterHeir, "FULL SISTER'S SHARE", ShareOfFullSister},
    {ConsSisterHeir, "CONSANGUINE SISTER'S SHARE", ShareOfConsSister},
    {ConsBrotherHeir, "CONSANGUINE BROTHER'S SHARE", ShareOfConsBrother},
    {UterineSisterHeir, "UTERINE SISTER'S SHARE", ShareOfUterineSister},
    {UterineBrotherHeir, "UTERINE BROTHER'S SHARE", ShareOfUterineBrother},
};

/// The sections of a report, the last one first. Text3 shows them in the end, even if a failure ends the run.
class SectionStack {
 public:
  explicit SectionStack(CaseScreen& screen) : screen_(screen) {}
  SectionStack(const SectionStack&) = delete;
  SectionStack& operator=(const SectionStack&) = delete;
  ~SectionStack() { Show(); }

  void Put(const SectionRow& row, int number) {
    texts_.push_back(Join("(", number, "). ", row.Title, row.Gap, screen_.Text2.Text, row.End));
  }
  void PutHeader(const std::string& header) { texts_.push_back(Join(header, CRLF, CRLF)); }

 private:
  void Show() {
    std::string whole;
    for (auto text = texts_.rbegin(); text != texts_.rend(); ++text) whole += *text;
    screen_.Text3.Text = whole;
  }

  CaseScreen& screen_;
  std::vector<std::string> texts_;
};

/// Starts both commands: clears and loads. False after a hard failure of the load.
bool Start(CaseRecord& c, CaseScreen& screen) {
  c.CaseLoaded = true;
  screen.Frame5.Visible = false;
  ShowLongText(screen, true);
  screen.Text3.Text = "";
  screen.Text2.Text = "";
  ClearResults(c, screen);
  LoadCase(c, screen);
  if (!c.InputFailed) return true;
  c.InputFailed = false;
  return false;
}

std::string Footer(CaseScreen& screen) { return Join(GeneratedBy(screen.Ports.Time.Now()), CRLF, CRLF); }

/// Every kind has a section. The section of the spouse whom the deceased cannot have is a heading alone.
void RunAllSections(CaseRecord& c, CaseScreen& screen) {
  SectionStack stack(screen);
  int number = 0;
  for (const SectionRow& row : sections) {
    if (row.Gender == anyGender || row.Gender == screen.Combo1.ListIndex) row.Run(c, screen);
    stack.Put(row, ++number);
    if (row.Gender == Male) screen.Text2.Text = "";
  }
  stack.PutHeader(c.ReportHeader);
}

void RunEnteredSections(CaseRecord& c, CaseScreen& screen) {
  SectionStack stack(screen);
  int number = 0;
  for (const SectionRow& row : sections) {
    if (!IsAlive(c, row.Heir)) continue;
    row.Run(c, screen);
    stack.Put(row, ++number);
  }
}

}  // namespace

void RunFullReport(CaseRecord& c, CaseScreen& screen) {
  if (!Start(c, screen)) return;
  BuildFullHeader(c, screen);
  RunAllSections(c, screen);
  screen.StatusBar1.Caption = "Shares of ALL QURANIC Sharers";
  screen.Label2.Caption = "ALL INDIVIDUAL REPORTS";
  c.CaseLoaded = false;
  SufficiencyTest(c, screen);
  BuildSummarizedShares(c, screen);
  screen.Text3.Text = Join(screen.Text3.Text, CRLF, c.SummaryReport, CRLF, CRLF, Footer(screen));
}

void RunSelectedReport(CaseRecord& c, CaseScreen& screen) {
  if (!Start(c, screen)) return;
  BuildSelectedHeader(c, screen);
  RunEnteredSections(c, screen);
  SufficiencyTest(c, screen);
  BuildSummarizedShares(c, screen);
  screen.Text3.Text =
      Join(c.ReportHeader, CRLF, CRLF, screen.Text3.Text, c.SummaryReport, CRLF, CRLF, Footer(screen));
  screen.StatusBar1.Caption = "Shares of SELECTED QURANIC Sharers";
  screen.Label2.Caption = "SELECTED DISTRIBUTION";
  c.CaseLoaded = false;
}

}  // namespace qismora
