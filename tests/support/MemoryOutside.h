#pragma once

#include <deque>
#include <map>
#include <string>
#include <vector>

#include "base/Outside.h"

namespace qismora::testing {

/// The outside world in memory: a clock that stands still, boxes and dialogs that answer from a queue,
/// settings in a map.
class MemoryClock : public Clock {
 public:
  DateTime Now() override { return Time; }
  DateTime Time = {2024, 3, 5, 14, 7, 9};
};

class MemoryBoxes : public MessageBoxes {
 public:
  struct Box {
    BoxStyle Style;
    BoxButtons Buttons;
    std::string Text;
    Answer Given = Answer::Ok;
  };

  /// A box with a choice takes the first answer of the queue, or No when it is empty.
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
  /// Questions end unanswered, as with the program.
  bool QuestionsEnd = false;
};

class MemoryDialog : public SaveDialog {
 public:
  std::optional<std::string> AskPath(const std::string& suggestedName, const std::string&) override {
    Suggested = suggestedName;
    if (Paths.empty()) return std::nullopt;
    std::string path = Paths.front();
    Paths.pop_front();
    return path;
  }

  std::string Suggested;
  std::deque<std::string> Paths;
};

class MemorySettings : public Settings {
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

class MemoryFolders : public Folders {
 public:
  std::string Reports() override { return Folder; }
  std::string Application() override { return Folder; }
  std::string Folder = ".";
};

class MemoryViewer : public DocumentViewer {
 public:
  bool Open(const std::string& path) override {
    Opened.push_back(path);
    return HasViewer;
  }

  std::vector<std::string> Opened;
  bool HasViewer = true;
};

/// A player that notes what it would play.
class MemoryPlayer : public VideoPlayer {
 public:
  void SetFile(const std::string& path) override { File = path; }
  void Play() override { Played.push_back(File); }

  std::string File;
  std::vector<std::string> Played;
};

class MemoryMemory : public MemoryMeter {
 public:
  MemoryFigures Read() override { return Figures; }
  MemoryFigures Figures;
};

class MemoryProgram : public Program {
 public:
  void End() override { ++Ends; }
  int Ends = 0;
};

struct MemoryWorld {
  MemoryClock Clock;
  MemoryBoxes Boxes;
  MemoryDialog Dialog;
  MemorySettings Settings;
  MemoryFolders Folders;
  MemoryViewer Viewer;
  MemoryPlayer Player;
  MemoryMemory Memory;
  MemoryProgram Program;
  ShellOutside Ports{{Clock, Boxes, Dialog, Settings, Folders}, Viewer, Player, Memory, Program};
};

}  // namespace qismora::testing
