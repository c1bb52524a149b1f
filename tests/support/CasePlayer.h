#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "screens/CaseStudy.h"
#include "support/MemoryOutside.h"
#include "support/TemporaryFolder.h"
#include "support/WorkedCase.h"

namespace qismora::testing {

using Lines = std::vector<std::string>;

/// Plays a worked case as a user does, on a screen of its own, and holds each answer against the one told.
class CasePlayer {
 public:
  CasePlayer() {
    world_.Folders.Folder = folder_.Path();
    boxes_ = {{"Wives", 1}, {"Husband", 1}};  // box 1 bears the caption of either
    for (const int box : HeirBoxes) boxes_[screen_.Label1(box).Caption.Get()] = box;
    for (const int box : {NameBox, GrossEstateBox, FuneralBox, DebtsBox, WillsBox}) {
      boxes_[screen_.Label1(box).Caption.Get()] = box;
      if (box != NameBox) screen_.Text1(box).Text = "0";
    }
    for (int i = 0; i < screen_.Check1.Size; ++i) checks_[screen_.Check1(i).Caption.Get()] = i;
  }

  void Play(const documents::WorkedCase& worked) {
    for (const auto& [caption, value] : worked.Boxes) Enter(caption, value);
    // Aul and Radd stand on a distribution, whether the case tells it or not.
    if (worked.Answers.front().Command == "Aul & Radd") screen_.Resid_Click();
    for (const documents::Played& answer : worked.Answers) {
      SCOPED_TRACE(answer.Command);
      if (answer.Command == "Then type") {
        for (const std::string& line : answer.Lines) {
          const auto [caption, value] = documents::SplitEntry(line);
          Enter(caption, value);
        }
        continue;
      }
      EXPECT_EQ(Joined(answer.Lines), Joined(Shortened(answer.Lines, Run(answer.Command))));
    }
  }

 private:
  void Enter(const std::string& caption, const std::string& value) {
    if (caption == "Deceased" && (value == "Male" || value == "Female")) {
      screen_.Combo1.ListIndex = value == "Female" ? Female : Male;
    } else if (caption == "Answer") {
      world_.Boxes.Answers.push_back(value == "Yes" ? Answer::Yes : Answer::No);
    } else if (const auto box = boxes_.find(caption); box != boxes_.end()) {
      screen_.Text1(box->second).Text = value;
    } else if (const auto check = checks_.find(caption); check != checks_.end() && value == "ticked") {
      screen_.Check1(check->second).Value = 1;
    } else {
      ADD_FAILURE() << "the screen has no " << caption << " = " << value;
    }
  }

  /// Does what the command says, and what the user then reads, without empty lines.
  Lines Run(const std::string& command) {
    if (command == "Message") return Message();
    if (command == "Files") return Files();
    world_.Boxes.Shown.clear();
    if (command == "Residuaries") {
      screen_.Resid_Click();
      return Figures();
    }
    if (command == "Aul & Radd") {
      screen_.AulRadd_Click();
      return Figures();
    }
    if (command == "All Individual") screen_.FullReport_Click();
    if (command == "Execute Selected") screen_.Exec_Click();
    if (command == "Full Report") screen_.CreateSaveFullReport_Click();
    if (const std::string doubleClick = "Double click "; command.starts_with(doubleClick)) {
      screen_.Label1_DblClick(boxes_.at(command.substr(doubleClick.size())));
      Lines lines = {screen_.Label2.Caption, screen_.Label3.Caption};
      std::ranges::copy(LinesOf(screen_.Text2.Text), std::back_inserter(lines));
      return lines;
    }
    return LinesOf(screen_.Text3.Text);
  }

  Lines Message() {
    Lines lines;
    for (const MemoryBoxes::Box& box : world_.Boxes.Shown) {
      std::ranges::copy(LinesOf(box.Text), std::back_inserter(lines));
    }
    return lines;
  }

  Lines Files() {
    Lines names;
    for (const auto& entry : std::filesystem::directory_iterator(folder_.Path())) {
      names.push_back(entry.path().filename().string());
    }
    std::ranges::sort(names);
    return names;
  }

  /// The lines of the long text between its introduction and its footer.
  Lines Figures() const {
    Lines lines = LinesOf(screen_.Text3.Text);
    if (!lines.empty() && lines.front().starts_with("The numbers shown")) lines.erase(lines.begin());
    const auto footer =
        std::ranges::find_if(lines, [](const std::string& line) { return line.starts_with("©"); });
    lines.erase(footer, lines.end());
    return lines;
  }

  static Lines LinesOf(const std::string& text) {
    std::istringstream in(text);
    Lines lines;
    for (std::string line; std::getline(in, line);) {
      if (line = documents::Trim(line); !line.empty()) lines.push_back(line);
    }
    return lines;
  }

  static std::string Joined(const Lines& lines) {
    std::string text;
    for (const std::string& line : lines) text.append(line).append("\n");
    return text;
  }

  /// A long line may be told up to an ellipsis.
  static std::string Cut(const std::string& line, const std::string& told) {
    const std::size_t ellipsis = told.find("…");
    return ellipsis == std::string::npos ? line : line.substr(0, ellipsis) + "…";
  }

  /// What was played with the lines left out for which the told answer has a line with an ellipsis alone.
  static Lines Shortened(const Lines& told, const Lines& played) {
    Lines shortened;
    auto at = played.begin();
    for (std::size_t i = 0; i < told.size() && at != played.end(); ++i) {
      if (told[i] != "…") {
        shortened.push_back(Cut(*at++, told[i]));
        continue;
      }
      shortened.push_back(told[i]);
      at = i + 1 == told.size() ? played.end() : std::find_if(at, played.end(), [&](const std::string& line) {
        return Cut(line, told[i + 1]) == told[i + 1];
      });
    }
    shortened.insert(shortened.end(), at, played.end());
    return shortened;
  }

  TemporaryFolder folder_;
  MemoryWorld world_;
  CaseRecord record_;
  CaseStudy screen_{record_, world_.Ports, 1};
  std::map<std::string, int> boxes_;
  std::map<std::string, int> checks_;
};

}  // namespace qismora::testing
