// Reads a script, plays it on the Case Study screen without a window, and prints the transcript.

#include <algorithm>
#include <charconv>
#include <filesystem>
#include <functional>
#include <iostream>
#include <memory>

#include "aulradd/FindLCM.h"
#include "base/Files.h"
#include "base/Text.h"
#include "player/Transcript.h"
#include "support/MemoryOutside.h"
#include "support/TemporaryFolder.h"

namespace fs = std::filesystem;

namespace qismora::testing {

namespace {

/// Boxes that are printed as they come.
class PrintedBoxes : public MemoryBoxes {
 public:
  Answer Show(BoxStyle style, BoxButtons buttons, const std::string& text) override {
    static constexpr const char* styles[] = {"plain", "information", "warning", "critical"};
    static constexpr const char* buttonNames[] = {"OK", "Yes/No", "Yes/No/Cancel"};
    static constexpr const char* answers[] = {"OK", "Yes", "No", "Cancel"};
    std::cout << "  box " << styles[static_cast<int>(style)] << ' ' << buttonNames[static_cast<int>(buttons)]
              << '\n';
    PrintPieces(std::cout, "  ! ", text);
    const Answer answer = MemoryBoxes::Show(style, buttons, text);
    if (buttons != BoxButtons::Ok) std::cout << "  answer " << answers[static_cast<int>(answer)] << '\n';
    return answer;
  }
};

/// The save dialog: file names of the queue, in the current directory.
class PrintedDialog : public MemoryDialog {
 public:
  std::optional<std::string> AskPath(const std::string& suggestedName, const std::string& filter) override {
    std::cout << "  dialog " << Escaped(suggestedName) << '\n';
    const std::optional<std::string> name = MemoryDialog::AskPath(suggestedName, filter);
    std::cout << (name ? "  file " + Escaped(*name) : "  cancel") << '\n';
    if (!name) return name;
    return "./" + *name;
  }
};

/// A script line that is no command.
struct NoCommand {};

std::optional<int> Number(std::string_view text) {
  int number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc{} || end != text.data() + text.size()) return std::nullopt;
  return number;
}

int IndexUpTo(std::string_view text, int last) {
  const std::optional<int> index = Number(text);
  if (!index || *index < 0 || *index > last) throw NoCommand();
  return *index;
}

bool HasTextBox(int index) { return (index >= 1 && index <= 7) || (index >= 13 && index <= 33); }
bool HasLabel(int index) { return (index >= 0 && index <= 7) || (index >= 12 && index <= 33); }

/// A control's name and its index, -1 where it has none: "Text1(3)" is Text1 and 3.
struct Control {
  std::string_view Name;
  int Index = -1;
};

Control ParseControl(std::string_view text) {
  if (!text.ends_with(')')) return {text, -1};
  const std::size_t open = text.find('(');
  if (open == std::string_view::npos) throw NoCommand();
  return {text.substr(0, open), IndexUpTo(text.substr(open + 1, text.size() - open - 2), 99)};
}

/// The first word of the text, which keeps what stands behind one blank.
std::string_view TakeWord(std::string_view& text) {
  const std::size_t end = std::min(text.find(' '), text.size());
  const std::string_view word = text.substr(0, end);
  text.remove_prefix(std::min(end + 1, text.size()));
  return word;
}

class Player {
 public:
  Player() { Open(); }

  void Play(const std::string& line) {
    std::cout << "> " << line << '\n';
    std::string_view rest = line;
    const std::string_view command = TakeWord(rest);
    using Command = void (Player::*)(std::string_view);
    static constexpr std::pair<std::string_view, Command> commands[] = {
        {"clock", &Player::SetClock}, {"type", &Player::Type},        {"choose", &Player::Choose},
        {"tick", &Player::Tick},      {"untick", &Player::Untick},    {"doubleclick", &Player::DoubleClick},
        {"click", &Player::Click},    {"answer", &Player::PutAnswer}, {"file", &Player::PutFile},
        {"write", &Player::Write},    {"cat", &Player::Cat},          {"ls", &Player::List},
        {"reopen", &Player::Reopen},  {"show", &Player::Show},        {"lcm", &Player::Lcm},
    };
    const auto* found = std::ranges::find(commands, command, &std::pair<std::string_view, Command>::first);
    if (found == std::end(commands)) throw NoCommand();
    (this->*found->second)(rest);
    std::vector<Shown> now = Snapshot(*study_);
    PrintChanges(std::cout, shown_, now);
    shown_ = std::move(now);
  }

 private:
  /// The view at an opening is the index that was read at program start, when there were no settings.
  void Open() {
    study_.reset();
    study_ = std::make_unique<CaseStudy>(record_, outside_, 0);
    if (shown_.empty()) shown_ = Snapshot(*study_);
  }

  void SetClock(std::string_view rest) {
    DateTime time;
    const auto part = [&](std::size_t at, std::size_t size) {
      return IndexUpTo(rest.size() == 19 ? rest.substr(at, size) : "", 9999);
    };
    time = {part(0, 4), part(5, 2), part(8, 2), part(11, 2), part(14, 2), part(17, 2)};
    clock_.Time = time;
  }

  void Type(std::string_view rest) {
    const Control box = ParseControl(TakeWord(rest));
    if (box.Name != "Text1" || !HasTextBox(box.Index)) throw NoCommand();
    study_->Text1(box.Index).Text = std::string(rest);
  }

  void Choose(std::string_view rest) { study_->Combo1.ListIndex = IndexUpTo(rest, 1); }
  void Tick(std::string_view rest) { study_->Check1(IndexUpTo(rest, 11)).Value = 1; }
  void Untick(std::string_view rest) { study_->Check1(IndexUpTo(rest, 11)).Value = 0; }

  void DoubleClick(std::string_view rest) {
    const Control control = ParseControl(rest);
    if (control.Name == "Label1" && HasLabel(control.Index)) return study_->Label1_DblClick(control.Index);
    if (control.Name == "Text1" && HasTextBox(control.Index)) return study_->Text1_DblClick(control.Index);
    if (control.Name == "Image37" && control.Index >= 0 && control.Index <= 5) {
      return study_->Image37_DblClick(control.Index);
    }
    if (rest == "Label13") return study_->Label13_DblClick();
    throw NoCommand();
  }

  void Click(std::string_view rest) {
    using Handler = void (CaseStudy::*)();
    static constexpr std::pair<std::string_view, Handler> handlers[] = {
        {"Image2", &CaseStudy::Image2_Click},
        {"Label6", &CaseStudy::Label6_Click},
        {"Image38", &CaseStudy::Image38_Click},
        {"Exec", &CaseStudy::Exec_Click},
        {"FullReport", &CaseStudy::FullReport_Click},
        {"Resid", &CaseStudy::Resid_Click},
        {"AulRad", &CaseStudy::AulRad_Click},
        {"AulRadd", &CaseStudy::AulRadd_Click},
        {"CreateSaveFullReport", &CaseStudy::CreateSaveFullReport_Click},
        {"FullReportxx", &CaseStudy::FullReportxx_Click},
        {"SaveResults", &CaseStudy::SaveResults_Click},
        {"TestValues", &CaseStudy::TestValues_Click},
        {"Back", &CaseStudy::Back_Click},
    };
    const Control control = ParseControl(rest);
    if (control.Name == "Label4" && control.Index >= 0 && control.Index <= 2) {
      return study_->Label4_Click(control.Index);
    }
    const auto* found = std::ranges::find(handlers, rest, &std::pair<std::string_view, Handler>::first);
    if (found == std::end(handlers)) throw NoCommand();
    if ((rest == "AulRad" && !study_->AulRad.Enabled) || (rest == "AulRadd" && !study_->AulRadd.Visible)) {
      std::cout << "  not available\n";
      return;
    }
    (study_.get()->*found->second)();
  }

  void PutAnswer(std::string_view rest) {
    static constexpr std::pair<std::string_view, Answer> answers[] = {
        {"Yes", Answer::Yes}, {"No", Answer::No}, {"Cancel", Answer::Cancel}};
    const auto* found = std::ranges::find(answers, rest, &std::pair<std::string_view, Answer>::first);
    if (found == std::end(answers)) throw NoCommand();
    boxes_.Answers.push_back(found->second);
  }

  void PutFile(std::string_view rest) {
    if (rest.empty()) throw NoCommand();
    dialog_.Paths.emplace_back(rest);
  }

  void Write(std::string_view rest) {
    const std::string name(TakeWord(rest));
    if (!IsFileName(name)) throw NoCommand();
    TextFile(name).Print(rest);
  }

  void Cat(std::string_view rest) {
    if (!fs::is_regular_file(fs::path(rest))) {
      std::cout << "  no file\n";
      return;
    }
    PrintPieces(std::cout, "  | ", ReadWholeFile(std::string(rest)));
  }

  void List(std::string_view rest) {
    if (!rest.empty()) throw NoCommand();
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(".")) names.push_back(entry.path().filename().string());
    std::ranges::sort(names);
    for (const std::string& name : names) std::cout << "  " << Escaped(name) << '\n';
  }

  void Reopen(std::string_view rest) {
    if (!rest.empty()) throw NoCommand();
    study_->Form_QueryUnload();
    Open();
  }

  void Show(std::string_view rest) {
    if (!rest.empty()) throw NoCommand();
    PrintRecord(std::cout, record_);
  }

  void Lcm(std::string_view rest) {
    int count = 0;
    while (!rest.empty()) {
      const std::optional<int> number = Number(TakeWord(rest));
      if (!number || count == record_.LcmDen.Size) throw NoCommand();
      record_.LcmDen(count++) = Integer(*number);
    }
    record_.LcmCount = Integer(count);
    try {
      FindLCM(record_);
    } catch (const Failure& failure) {
      boxes_.Tell(BoxStyle::Plain, Join(failure.Number, CRLF, failure.Description()));
    }
    std::cout << "  LcmResult = " << record_.LcmResult.Value() << "\n  LcmDen =";
    for (int i = 0; i < count; ++i) std::cout << ' ' << record_.LcmDen(i).Value();
    std::cout << (count == 0 ? " \n" : "\n");
  }

  MemoryClock clock_;
  PrintedBoxes boxes_;
  PrintedDialog dialog_;
  MemorySettings settings_;
  MemoryFolders folders_;
  Outside outside_{clock_, boxes_, dialog_, settings_, folders_};
  CaseRecord record_;
  std::unique_ptr<CaseStudy> study_;
  std::vector<Shown> shown_;
};

/// Plays standard input to its end, or to a line that is no command.
int PlayLines() {
  Player player;
  std::string line;
  for (int number = 1; std::getline(std::cin, line); ++number) {
    if (line.empty() || line.starts_with('#')) continue;
    try {
      player.Play(line);
    } catch (const NoCommand&) {
      std::cout.flush();
      std::cerr << "line " << number << " is no command: " << line << '\n';
      return 2;
    }
  }
  return 0;
}

/// A script is played in a new empty directory.
int PlayScript() {
  const fs::path before = fs::current_path();
  const TemporaryFolder folder;
  fs::current_path(folder.Path());
  const int status = PlayLines();
  fs::current_path(before);
  return status;
}

}  // namespace

}  // namespace qismora::testing

int main() {
  std::ios::sync_with_stdio(false);
  return qismora::testing::PlayScript();
}
