#pragma once

#include <string>

#include "base/Files.h"
#include "shell/SessionLog.h"
#include "support/ScreenFixture.h"

namespace qismora::testing {

/// A directory whose files are synchronized to the disk, as the program's are.
class DiskFolders : public FakeFolders {
 public:
  void WriteThrough(const std::string& path) override { SyncToDisk(path); }
};

/// One run of the program, with a wife and a number of sons, that saves every kind of file in a directory. It
/// replaces the files of earlier runs.
class SavingProgram {
 public:
  SavingProgram(const std::string& folder, int sons) : folder_(folder) {
    folders_.Folder = folder;
    Study.Text1(GrossEstateBox).Text = "24000";
    for (const int field : {FuneralBox, DebtsBox, WillsBox}) Study.Text1(field).Text = "0";
    Study.Text1(NameBox).Text = "Zayd";
    Study.Text1(1).Text = "1";
    Study.Text1(2).Text = std::to_string(sons);
    StartSession(shell_, ports_);
  }

  void SaveReport() {
    world_.Boxes.Answers = {Answer::Yes};
    Study.CreateSaveFullReport_Click();
  }
  void SaveResults() {
    world_.Boxes.Answers = {Answer::Yes};
    world_.Dialog.Paths = {folder_ + "/results.txt"};
    Study.SaveResults_Click();
  }
  /// Adds the session's line to the log.
  void End() { Inhp(shell_, record_, ports_); }

 private:
  std::string folder_;
  FakePorts world_;
  DiskFolders folders_;
  ShellOutside ports_{{world_.Clock, world_.Boxes, world_.Dialog, world_.Settings, folders_},
                      world_.Viewer,
                      world_.Player,
                      world_.Memory,
                      world_.Program};
  CaseRecord record_;
  ShellRecord shell_;

 public:
  CaseStudy Study{record_, ports_, 0};
};

}  // namespace qismora::testing
