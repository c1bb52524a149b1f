#pragma once

#include <string>

#include "base/Files.h"
#include "shell/SessionLog.h"
#include "support/ScreenFixture.h"

namespace qismora::testing {

/// One run of the program, with a wife and a number of sons, that saves every kind of file in a directory. It
/// replaces the files of earlier runs.
class SavingProgram {
 public:
  SavingProgram(const std::string& folder, int sons) : folder_(folder) {
    case_.Fakes.Folders.Folder = folder;
    case_.Fakes.Folders.Disk = SyncToDisk;
    case_.TypeEstate("24000");
    case_.Type(NameField, "Zayd");
    case_.Type(1, "1");
    case_.Type(2, std::to_string(sons));
    StartSession(shell_, case_.Fakes.Ports);
  }

  void SaveReport() {
    case_.Fakes.Boxes.Answers = {Answer::Yes};
    case_.Study->CreateSaveFullReport_Click();
  }
  void SaveResults() {
    case_.Fakes.Boxes.Answers = {Answer::Yes};
    case_.Fakes.Dialogs.Paths = {folder_ + "/results.txt"};
    case_.Study->SaveResults_Click();
  }
  /// Adds the session's line to the log.
  void End() { Inhp(shell_, case_.Record, case_.Fakes.Ports); }

 private:
  std::string folder_;
  ScreenFixture case_;
  ShellRecord shell_;
};

}  // namespace qismora::testing
