#pragma once

#include <deque>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "base/Ports.h"

namespace qismora::testing {

// Fakes of all ports.

/// A clock with a fixed time.
class FakeClock : public Clock {
 public:
  DateTime Now() override { return Time; }
  DateTime Time = {2024, 3, 5, 14, 7, 9};
};

/// Records the message boxes and answers from a queue.
class FakeMessageBoxes : public MessageBoxes {
 public:
  struct Box {
    BoxStyle Style;
    BoxButtons Buttons;
    std::string Text;
    Answer Given = Answer::Ok;
  };

  /// A message box with a choice takes the first answer of the queue, or No when the queue is empty.
  Answer Show(BoxStyle style, BoxButtons buttons, const std::string& text) override {
    Shown.push_back({style, buttons, text});
    if (buttons == BoxButtons::Ok) return Answer::Ok;
    if (QuestionsEnd) throw Unanswered();
    if (Answers.empty()) return Shown.back().Given = Answer::No;
    const Answer answer = Answers.front();
    Answers.pop_front();
    return Shown.back().Given = answer;
  }

  std::vector<Box> Shown;
  std::deque<Answer> Answers;
  /// Every question ends without an answer, as when the program ends.
  bool QuestionsEnd = false;
};

/// Answers with the paths of a queue, and cancels when the queue is empty.
class FakeFileDialogs : public FileDialogs {
 public:
  std::optional<std::string> AskPath(const std::string& suggestedName, const std::string&) override {
    Suggested = suggestedName;
    return Next();
  }
  std::optional<std::string> AskCaseToOpen(const std::string& folder) override {
    Suggested = folder;
    return Next();
  }
  std::optional<std::string> AskCaseToSave(const std::string& suggestedPath) override {
    Suggested = suggestedPath;
    return Next();
  }

  std::string Suggested;
  std::deque<std::string> Paths;

 private:
  std::optional<std::string> Next() {
    if (Paths.empty()) return std::nullopt;
    std::string path = Paths.front();
    Paths.pop_front();
    return path;
  }
};

/// Keeps the settings in a map.
class FakeSettings : public Settings {
 public:
  std::string Read(const std::string& application, const std::string& section,
                   const std::string& key) override {
    const auto found = Values.find(application + "/" + section + "/" + key);
    return found == Values.end() ? "" : found->second;
  }
  void Write(const std::string& application, const std::string& section, const std::string& key,
             const std::string& value) override {
    Values[application + "/" + section + "/" + key] = value;
  }

  std::map<std::string, std::string> Values;
};

/// One directory for everything, on a disk that does as the test wants when it is written through.
class FakeFolders : public StandardFolders {
 public:
  void WriteThrough(const std::string& path) override {
    if (Disk) Disk(path);
  }
  std::string Reports() override { return Folder; }
  std::string Application() override { return Folder; }
  std::string Folder = ".";
  std::function<void(const std::string& path)> Disk;
};

/// Records the documents that it should open.
class FakeDocumentViewer : public DocumentViewer {
 public:
  bool Open(const std::string& path) override {
    Opened.push_back(path);
    return HasViewer;
  }

  std::vector<std::string> Opened;
  bool HasViewer = true;
};

/// Records the videos that it should play.
class FakeVideoPlayer : public VideoPlayer {
 public:
  void SetFile(const std::string& path) override { File = path; }
  void Play() override { Played.push_back(File); }

  std::string File;
  std::vector<std::string> Played;
};

/// Returns fixed memory figures.
class FakeMemoryMeter : public MemoryMeter {
 public:
  MemoryFigures Read() override { return Figures; }
  MemoryFigures Figures;
};

/// Counts how often the program was ended.
class FakeProgram : public Program {
 public:
  void End() override { ++Ends; }
  int Ends = 0;
};

/// All fakes, and the ports that refer to them.
struct FakePorts {
  FakeClock Clock;
  FakeMessageBoxes Boxes;
  FakeFileDialogs Dialogs;
  FakeSettings Settings;
  FakeFolders Folders;
  FakeDocumentViewer Viewer;
  FakeVideoPlayer Player;
  FakeMemoryMeter Memory;
  FakeProgram Program;
  ShellPorts Ports{{Clock, Boxes, Dialogs, Settings, Folders}, Viewer, Player, Memory, Program};
};

}  // namespace qismora::testing
