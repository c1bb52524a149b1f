#include "reports/ReportFiles.h"

#include "aulradd/AulRadd.h"
#include "base/Dates.h"
#include "base/Files.h"
#include "base/Text.h"
#include "reports/ReportRuns.h"
#include "residue/Residuaries.h"

namespace qismora {

namespace {

constexpr const char* nothingToSave = "Execute the program and then try to save.";

/// Runs the second and the third step and writes all three to the working file, which is closed in every
/// case. Returns what was written: another program in the same folder may be writing its own report to the
/// file.
std::string PrintReport(CaseRecord& c, CaseScreen& screen, const std::string& stepOne) {
  TextFile file(Join(screen.World.Places.Reports(), "/FullReport"));
  file.Print(
      "HERE IS THE COMPLETE RESULT OBTAINED FROM THE QISMORA SOFTWARE. THE COMPLETE RESULTS ARE IN THREE STEPS AND "
      "MUST BE SEEN IN TOTALITY.\r\n");
  file.Print(stepOne);

  RunResiduaries(c, screen);
  file.Print(Join("STEP - 2 (RESIDUARIES [ASABA'T]):", CRLF, CRLF, c.ResiduaryReport));

  if (c.AulRaddState == AulBesideResiduary || c.AulRaddState == Aul || c.AulRaddState == Radd) {
    RunAulRadd(c, screen);
    file.Print(Join(CRLF, "STEP - 3 (AUL/ RADD):", CRLF, CRLF, screen.Text3.Text));
  } else {
    file.Print(Join(CRLF, "STEP - 3 (AUL/ RADD):", CRLF, CRLF, "AUL OR RADD NOT APPLICABLE IN THIS CASE.",
                    CRLF, CRLF, GeneratedBy(screen.World.Time.Now()), CRLF, CRLF));
  }
  file.Close();
  return file.Content();
}

void MakeFullReport(CaseRecord& c, CaseScreen& screen) {
  RunSelectedReport(c, screen);
  // The footer goes, the line breaks in front of it stay. A run that the load has stopped leaves no text to
  // cut: that failure ends the command before any file is touched.
  const std::string stepOne = Join("STEP - 1 (INPUTS & INDIVIDUAL REPORTS):", CRLF, CRLF,
                                   WithoutEnd(screen.Text3.Text.Get(), FooterLength));
  const std::string report = PrintReport(c, screen, stepOne);
  // Each line stands behind a line break: the text starts with one and ends without.
  screen.Text3.Text = Join(CRLF, WithoutEnd(report, 2));
  SaveFullReportFile(screen, report);
}

/// Whether the user lets the file of that name be replaced.
bool AskToReplaceReport(CaseScreen& screen) {
  return screen.World.Boxes.Show(
             BoxStyle::Warning, BoxButtons::YesNo,
             Join("SAVING THIS REPORT: You are already having a file of ", screen.Text1(NameBox).Text, ".",
                  CRLF, "Would you like to replace the existing file?")) == Answer::Yes;
}

/// The text that the result area shows; empty when it shows none.
std::string ShownText(const CaseScreen& screen) {
  if (screen.Text3.Visible && !screen.Text3.Text.Get().empty()) return screen.Text3.Text;
  if (screen.Text2.Visible) return screen.Text2.Text;
  return "";
}

void WriteResults(CaseScreen& screen, const std::string& path) {
  const std::string text = ShownText(screen);
  if (text.empty()) {
    // The file is opened before its content is looked at, and goes again.
    TextFile(path).Close();
    screen.World.Boxes.Tell(BoxStyle::Warning, nothingToSave);
    DeleteFile(path);
    return;
  }
  WriteSafely(screen.World.Places, path, Join(screen.Label2.Caption, CRLF, text, CRLF));
}

void ChooseAndSave(CaseScreen& screen) {
  const std::optional<std::string> path =
      screen.World.Dialog.AskPath(screen.Text1(NameBox).Text, "All Text Files (*.txt)|*.txt");
  if (!path) return;
  const std::size_t separator = path->rfind('/');
  const std::string name = path->substr(separator + 1);
  const std::string folder = path->substr(0, separator);
  if (!IsFileName(name)) return;
  if (FolderHolds(folder, name)) {
    const Answer answer =
        screen.World.Boxes.Show(BoxStyle::Warning, BoxButtons::YesNoCancel,
                                Join("File with the name ", name, " already exists in the folder.", CRLF,
                                     "Would you like to replace the existing file?"));
    if (answer != Answer::Yes) return;
  }
  WriteResults(screen, *path);
}

}  // namespace

void CreateSaveFullReport(CaseRecord& c, CaseScreen& screen) {
  c.ReportToFile = true;
  try {
    MakeFullReport(c, screen);
  } catch (const Failure&) {
    c.ReportToFile = false;
    return;
  }
  c.ReportToFile = false;
}

void SaveFullReportFile(CaseScreen& screen, const std::string& report) {
  const std::string& deceased = screen.Text1(NameBox).Text;
  // A name that is none in a folder is refused, though its ending would make it one.
  if (!deceased.empty() && !IsFileName(deceased)) return;
  const std::string path = Join(screen.World.Places.Reports(), "/", LowerCase(deceased), ".txt");
  try {
    if (FileExists(path) && !AskToReplaceReport(screen)) return;
    WriteSafely(screen.World.Places, path, report);
  } catch (const Failure&) {
    return;
  }
  screen.World.Boxes.Tell(BoxStyle::Information, Join("Results of ", deceased, " saved successfully."));
}

void SaveResults(CaseScreen& screen) {
  if (screen.Text3.Text.Get().empty() && screen.Text2.Text.Get().empty()) {
    screen.World.Boxes.Tell(BoxStyle::Warning, nothingToSave);
    return;
  }
  try {
    ChooseAndSave(screen);
  } catch (const Failure&) {
    return;
  }
}

}  // namespace qismora
