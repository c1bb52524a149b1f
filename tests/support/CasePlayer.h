#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>
#include <string>
#include <vector>

#include "division/DivisionText.h"
#include "screens/CaseStudy.h"
#include "support/FakePorts.h"
#include "support/TemporaryFolder.h"
#include "support/WorkedCase.h"

namespace qismora::testing {

using Lines = std::vector<std::string>;

/// Plays a worked case on a screen of its own, as a user would, and compares each answer with the expected
/// one.
class CasePlayer {
 public:
  CasePlayer() { fakes_.Folders.Folder = folder_.Path(); }

  /// Types what the case begins with, and returns it.
  CaseTexts Type(const documents::WorkedCase& worked) {
    Enter(worked.Fields);
    return typed_.Texts();
  }

  void Play(const documents::WorkedCase& worked) {
    Type(worked);
    // Aul and Radd work on a distribution, even if the case does not show it.
    if (worked.Answers.front().Command == "Aul & Radd") screen_.Resid_Click();
    for (const documents::Played& answer : worked.Answers) {
      SCOPED_TRACE(answer.Command);
      if (answer.Command == "Then type") {
        documents::Entries changes;
        for (const std::string& line : answer.Lines) changes.push_back(documents::SplitEntry(line));
        Enter(changes);
      } else {
        EXPECT_EQ(Joined(answer.Lines), Joined(Shortened(answer.Lines, Run(answer.Command))));
      }
    }
  }

 private:
  void Enter(const documents::Entries& entries) {
    for (const auto& [caption, value] : entries) {
      const std::optional<Entry> entry = FindEntry(caption);
      if (caption == "Answer") {
        fakes_.Boxes.Answers.push_back(value == "Yes" ? Answer::Yes : Answer::No);
      } else {
        EXPECT_TRUE(entry && !typed_.Set(*entry, value)) << "the screen has no " << caption << " = " << value;
      }
    }
    EXPECT_FALSE(typed_.Complete());
    TypeIntoScreen(typed_.Texts(), screen_);
  }

  /// Runs the command and returns what the user then reads, without empty lines.
  Lines Run(const std::string& command) {
    if (command == "Message") return Message();
    if (command == "Files") return NamesIn(folder_.Path());
    if (const std::string division = "Division "; command.starts_with(division)) {
      return DivisionLines(ReadDivisionInput(typed_.Texts()), SchoolOf(command.substr(division.size())));
    }
    fakes_.Boxes.Shown.clear();
    if (command == "Residuaries" || command == "Aul & Radd") {
      command == "Residuaries" ? screen_.Resid_Click() : screen_.AulRadd_Click();
      return Figures();
    }
    if (command == "All Individual") screen_.FullReport_Click();
    if (command == "Execute Selected") screen_.Exec_Click();
    if (command == "Full Report") screen_.CreateSaveFullReport_Click();
    if (const std::string doubleClick = "Double click "; command.starts_with(doubleClick)) {
      screen_.Label1_DblClick(FindEntry(command.substr(doubleClick.size())).value().Index);
      Lines lines = {screen_.Label2.Caption, screen_.Label3.Caption};
      std::ranges::copy(LinesOf(screen_.Text2.Text), std::back_inserter(lines));
      return lines;
    }
    return LinesOf(screen_.Text3.Text);
  }

  static faraid::School SchoolOf(const std::string& name) {
    if (name == "Maliki") return faraid::School::Maliki;
    if (name == "Shafi'i") return faraid::School::Shafii;
    return name == "Hanbali" ? faraid::School::Hanbali : faraid::School::Hanafi;
  }

  Lines Message() {
    Lines lines;
    for (const FakeMessageBoxes::Box& box : fakes_.Boxes.Shown) {
      std::ranges::copy(LinesOf(box.Text), std::back_inserter(lines));
    }
    return lines;
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

  /// The line, cut where the expected line has an ellipsis.
  static std::string Cut(const std::string& line, const std::string& expected) {
    const std::size_t ellipsis = expected.find("…");
    return ellipsis == std::string::npos ? line : line.substr(0, ellipsis) + "…";
  }

  /// The played lines without those that the expected answer leaves out by a line with an ellipsis alone.
  static Lines Shortened(const Lines& expected, const Lines& played) {
    Lines shortened;
    auto at = played.begin();
    for (std::size_t i = 0; i < expected.size() && at != played.end(); ++i) {
      if (expected[i] != "…") {
        shortened.push_back(Cut(*at++, expected[i]));
        continue;
      }
      shortened.push_back(expected[i]);
      at = i + 1 == expected.size() ? played.end()
                                    : std::find_if(at, played.end(), [&](const std::string& line) {
                                        return Cut(line, expected[i + 1]) == expected[i + 1];
                                      });
    }
    shortened.insert(shortened.end(), at, played.end());
    return shortened;
  }

  TemporaryFolder folder_;
  FakePorts fakes_;
  CaseRecord record_;
  CaseStudy screen_{record_, fakes_.Ports, 1};
  CaseEntries typed_;
};

}  // namespace qismora::testing
