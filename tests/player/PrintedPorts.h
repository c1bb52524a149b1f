#pragma once

#include <array>
#include <ostream>
#include <string>

#include "base/Files.h"
#include "base/Text.h"
#include "player/Transcript.h"
#include "support/FakePorts.h"

namespace qismora::testing {

/// Prints each message box when it is shown.
class PrintedMessageBoxes : public FakeMessageBoxes {
 public:
  explicit PrintedMessageBoxes(std::ostream& out) : out_(out) {}

  Answer Show(BoxStyle style, BoxButtons buttons, const std::string& text) override {
    static constexpr std::array styles = {"plain", "information", "warning", "critical"};
    static constexpr std::array buttonNames = {"OK", "Yes/No", "Yes/No/Cancel", "Save/Discard/Cancel"};
    static constexpr std::array answers = {"OK", "Yes", "No", "Cancel", "Save", "Discard"};
    out_ << "  box " << styles.at(static_cast<std::size_t>(style)) << ' '
         << buttonNames.at(static_cast<std::size_t>(buttons)) << '\n';
    PrintPieces(out_, "  ! ", text);
    const Answer answer = FakeMessageBoxes::Show(style, buttons, text);
    if (buttons != BoxButtons::Ok)
      out_ << "  answer " << answers.at(static_cast<std::size_t>(answer)) << '\n';
    return answer;
  }

 private:
  std::ostream& out_;
};

/// Prints each save dialog. It answers with the file names of the queue, in the directory of the script.
class PrintedFileDialogs : public FakeFileDialogs {
 public:
  PrintedFileDialogs(std::ostream& out, const std::string& folder) : out_(out), folder_(folder) {}

  std::optional<std::string> AskPath(const std::string& suggestedName, const std::string& filter) override {
    out_ << "  dialog " << Escaped(suggestedName) << '\n';
    const std::optional<std::string> name = FakeFileDialogs::AskPath(suggestedName, filter);
    out_ << (name ? "  file " + Escaped(*name) : "  cancel") << '\n';
    if (!name) return name;
    // A name outside the directory becomes "..", which is not a valid file name either.
    return Join(folder_, "/", IsFileName(*name) ? *name : "..");
  }

 private:
  std::ostream& out_;
  std::string folder_;
};

}  // namespace qismora::testing
