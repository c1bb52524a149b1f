#pragma once

#include <memory>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "player/PrintedPorts.h"
#include "player/Transcript.h"
#include "screens/CaseStudy.h"
#include "screens/QurLaws.h"

namespace qismora::testing {

/// Thrown for a script line that is not a command.
struct UnknownCommand {};

/// Plays the lines of a script on a Case Study screen without a window, and prints the transcript. All files
/// of a script are in one directory.
class Player {
 public:
  /// Opens the screen on the record, with fake ports.
  Player(CaseRecord& record, std::ostream& out, const std::string& folder);

  /// Prints the line, plays it, and prints its message boxes and what changed.
  void Play(std::string_view line);
  /// Plays the line without printing it or what changed.
  void Perform(std::string_view line);

  const CaseStudy& Study() const { return *study_; }
  FakeMessageBoxes& Boxes() { return boxes_; }

 private:
  void Open();
  void SetClock(std::string_view rest);
  void Type(std::string_view rest);
  void Choose(std::string_view rest);
  void Tick(std::string_view rest);
  void Untick(std::string_view rest);
  void DoubleClick(std::string_view rest);
  void Click(std::string_view rest);
  void PutAnswer(std::string_view rest);
  void PutFile(std::string_view rest);
  void Write(std::string_view rest);
  void Cat(std::string_view rest);
  void List(std::string_view rest);
  void Reopen(std::string_view rest);
  void Show(std::string_view rest);
  void Lcm(std::string_view rest);
  void Page(std::string_view rest);
  void Division(std::string_view rest);
  void PrintPage(const QurLaws& form) const;

  std::string Path(std::string_view name) const;

  std::ostream& out_;
  CaseRecord& record_;
  FakeClock clock_;
  PrintedMessageBoxes boxes_;
  PrintedFileDialogs dialog_;
  FakeSettings settings_;
  FakeFolders folders_;
  CasePorts ports_{clock_, boxes_, dialog_, settings_, folders_};
  std::unique_ptr<CaseStudy> study_;
  std::vector<ControlValue> shown_;
};

}  // namespace qismora::testing
