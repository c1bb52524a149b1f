#include "reports/ReportFiles.h"

#include <algorithm>

#include "aulradd/AulRadd.h"
#include "base/Dates.h"
#include "base/Message.h"
#include "base/NewFile.h"
#include "base/Text.h"
#include "reports/ReportRuns.h"
#include "residue/Residuaries.h"

namespace qismora {

namespace {

constexpr const char* nothingToSave = "Execute the program and then try to save.";

std::string ReportPath(const CaseScreen& screen, std::string_view name) {
  return Join(screen.Ports.Folders.Reports(), "/", name);
}
std::string WorkingFile(const CaseScreen& screen) { return ReportPath(screen, "FullReport"); }

/// Reports the outcome of a save to the port SaveEnded.
void EndSave(const CaseScreen& screen, const std::string& path, const std::string& reason = "") {
  if (screen.Ports.SaveEnded) screen.Ports.SaveEnded({path, reason});
}

/// Runs the second and the third step and writes all three to the working file. After a failure the file has
/// what was printed before it; an abandoned run does not change the file. Returns what was written, because
/// another program may write its own report to the same file.
std::string PrintReport(CaseRecord& c, CaseScreen& screen, const std::string& stepOne) {
  NewFile file(screen.Ports.Folders, WorkingFile(screen), Replace::WithoutAsking);
  std::string report;
  const auto print = [&](std::string_view text) { report.append(text).append(CRLF); };
  try {
    print(
        "HERE IS THE COMPLETE RESULT OBTAINED FROM THE QISMORA SOFTWARE. THE COMPLETE RESULTS ARE IN THREE STEPS AND "
        "MUST BE SEEN IN TOTALITY.\r\n");
    print(stepOne);

    RunResiduaries(c, screen);
    print(Join("STEP - 2 (RESIDUARIES [ASABA'T]):", CRLF, CRLF, c.ResiduaryReport));

    if (c.AulRaddState == AulBesideResiduary || c.AulRaddState == Aul || c.AulRaddState == Radd) {
      RunAulRadd(c, screen);
      print(Join(CRLF, "STEP - 3 (AUL/ RADD):", CRLF, CRLF, screen.Text3.Text));
    } else {
      print(Join(CRLF, "STEP - 3 (AUL/ RADD):", CRLF, CRLF, "AUL OR RADD NOT APPLICABLE IN THIS CASE.", CRLF,
                 CRLF, GeneratedBy(screen.Ports.Time.Now()), CRLF, CRLF));
    }
  } catch (const Failure&) {
    file.Commit(report);
    throw;
  }
  file.Commit(report);
  return report;
}

void MakeFullReport(CaseRecord& c, CaseScreen& screen) {
  RunSelectedReport(c, screen);
  // The footer is removed, the line breaks before it stay. If the load has stopped the run, there is no
  // footer, and the failure of WithoutEnd ends the command before any file is changed.
  const std::string stepOne = Join("STEP - 1 (INPUTS & INDIVIDUAL REPORTS):", CRLF, CRLF,
                                   WithoutEnd(screen.Text3.Text.Get(), FooterLength));
  const std::string report = PrintReport(c, screen, stepOne);
  // The text starts with a line break and does not end with one.
  screen.Text3.Text = Join(CRLF, WithoutEnd(report, 2));
  SaveFullReportFile(screen, report);
}

/// Whether the user agrees to replace the report of the deceased.
bool AskToReplaceReport(CaseScreen& screen) {
  return screen.Ports.Boxes.Show(
             BoxStyle::Warning, BoxButtons::YesNo,
             Join("SAVING THIS REPORT: You are already having a file of ", screen.Text1(NameField).Text, ".",
                  CRLF, "Would you like to replace the existing file?")) == Answer::Yes;
}

/// The text that the result area shows; empty when it shows none.
std::string ShownText(const CaseScreen& screen) {
  if (screen.Text3.Visible && !screen.Text3.Text.Get().empty()) return screen.Text3.Text;
  if (screen.Text2.Visible) return screen.Text2.Text;
  return "";
}

/// Whether the user agrees to replace the file of this name.
bool AskToReplaceResults(CaseScreen& screen, const std::string& name) {
  return screen.Ports.Boxes.Show(BoxStyle::Warning, BoxButtons::YesNoCancel,
                                 Join("File with the name ", name, " already exists in the folder.", CRLF,
                                      "Would you like to replace the existing file?")) == Answer::Yes;
}

/// Saves the shown text under the path that the user has chosen. A link is followed.
void SaveShownText(CaseScreen& screen, const std::string& path) {
  const std::size_t separator = path.rfind('/');
  const std::string name = path.substr(separator + 1);
  if (!IsFileName(name)) throw FileFailure(PathFileAccess, "this is no file name");
  const std::vector<std::string> File1 = ListFiles(path.substr(0, separator) + "/");
  const bool exists = std::ranges::find(File1, name) != File1.end();
  if (exists && !AskToReplaceResults(screen, name)) return;

  const std::string text = ShownText(screen);
  if (text.empty()) {
    screen.Ports.Boxes.Inform(BoxStyle::Warning, nothingToSave);
    return;
  }
  WriteSafely(screen.Ports.Folders, exists ? FollowLinks(path) : path,
              Join(screen.Label2.Caption, CRLF, text, CRLF), exists ? Replace::Agreed : Replace::Nothing);
  EndSave(screen, path);
}

/// Suppresses the messages of the steps during its lifetime.
class ReportingToFile {
 public:
  explicit ReportingToFile(CaseRecord& c) : record_(c) { record_.ReportToFile = true; }
  ~ReportingToFile() { record_.ReportToFile = false; }
  ReportingToFile(const ReportingToFile&) = delete;
  ReportingToFile& operator=(const ReportingToFile&) = delete;

 private:
  CaseRecord& record_;
};

}  // namespace

void CreateSaveFullReport(CaseRecord& c, CaseScreen& screen) {
  const ReportingToFile reporting(c);
  try {
    MakeFullReport(c, screen);
  } catch (const FileFailure& failure) {
    EndSave(screen, WorkingFile(screen), failure.Reason);
  } catch (const Failure&) {
    if (screen.Watch.Stopped) screen.Watch.Stopped(Translatable("The case could not be worked out."));
    EndSave(screen, WorkingFile(screen), "the case could not be worked out");
  }
}

void SaveFullReportFile(CaseScreen& screen, const std::string& report) {
  const std::string& deceased = screen.Text1(NameField).Text;
  const std::string name = Join(LowerCase(deceased), ".txt");
  const std::string path = ReportPath(screen, name);
  StandardFolders& folders = screen.Ports.Folders;
  try {
    if (!IsFileName(name)) throw FileFailure(PathFileAccess, "this is no file name");
    try {
      WriteSafely(folders, path, report, Replace::Nothing);
    } catch (const Failure& failure) {
      if (failure.Number != FileAlreadyExists) throw;
      if (!AskToReplaceReport(screen)) return EndSave(screen, WorkingFile(screen));
      WriteSafely(folders, path, report, Replace::Agreed);
    }
  } catch (const FileFailure& failure) {
    return EndSave(screen, path, failure.Reason);
  }
  EndSave(screen, path);
  screen.Ports.Boxes.Inform(BoxStyle::Information, Join("Results of ", deceased, " saved successfully."));
}

void SaveResults(CaseScreen& screen) {
  if (screen.Text3.Text.Get().empty() && screen.Text2.Text.Get().empty()) {
    screen.Ports.Boxes.Inform(BoxStyle::Warning, nothingToSave);
    return;
  }
  const std::optional<std::string> path =
      screen.Ports.Dialogs.AskPath(screen.Text1(NameField).Text, "All Text Files (*.txt)|*.txt");
  if (!path) return;
  try {
    SaveShownText(screen, *path);
  } catch (const FileFailure& failure) {
    EndSave(screen, *path, failure.Reason);
  }
}

}  // namespace qismora
