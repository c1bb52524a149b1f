#include "player/Player.h"

#include <algorithm>
#include <charconv>
#include <filesystem>

#include "aulradd/FindLCM.h"
#include "base/NewFile.h"
#include "base/Text.h"
#include "division/DivisionText.h"
#include "screens/Event.h"
#include "support/TemporaryFolder.h"

namespace fs = std::filesystem;

namespace qismora::testing {

namespace {

std::optional<int> Number(std::string_view text) {
  int number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc{} || end != text.data() + text.size()) return std::nullopt;
  return number;
}

int IndexUpTo(std::string_view text, int last) {
  const std::optional<int> index = Number(text);
  if (!index || *index < 0 || *index > last) throw UnknownCommand();
  return *index;
}

/// The entry of that name in a table. Throws where there is none.
template <class Value, std::size_t Size>
Value Named(const std::pair<std::string_view, Value> (&table)[Size], std::string_view name) {
  const auto* found = std::ranges::find(table, name, &std::pair<std::string_view, Value>::first);
  if (found == std::end(table)) throw UnknownCommand();
  return found->second;
}

bool HasField(int index) { return (index >= 1 && index <= 7) || (index >= 13 && index <= 33); }
bool HasLabel(int index) { return (index >= 0 && index <= 7) || (index >= 12 && index <= 33); }

/// A control's name and its index, -1 where it has none: "Text1(3)" is Text1 and 3.
struct Control {
  std::string_view Name;
  int Index = -1;
};

Control ParseControl(std::string_view text) {
  if (!text.ends_with(')')) return {text, -1};
  const std::size_t open = text.find('(');
  if (open == std::string_view::npos) throw UnknownCommand();
  return {text.substr(0, open), IndexUpTo(text.substr(open + 1, text.size() - open - 2), 99)};
}

/// Removes the first word and one blank from the text, and returns the word.
std::string_view TakeWord(std::string_view& text) {
  const std::size_t end = std::min(text.find(' '), text.size());
  const std::string_view word = text.substr(0, end);
  text.remove_prefix(std::min(end + 1, text.size()));
  return word;
}

}  // namespace

Player::Player(CaseRecord& record, std::ostream& out, const std::string& folder)
    : out_(out), record_(record), boxes_(out), dialog_(out, folder) {
  folders_.Folder = folder;
  Open();
}

void Player::Play(std::string_view line) {
  out_ << "> " << line << '\n';
  Perform(line);
  std::vector<ControlValue> now = Snapshot(*study_);
  PrintChanges(out_, shown_, now);
  shown_ = std::move(now);
}

void Player::Perform(std::string_view line) {
  std::string_view rest = line;
  const std::string_view command = TakeWord(rest);
  using Command = void (Player::*)(std::string_view);
  static constexpr std::pair<std::string_view, Command> commands[] = {
      {"clock", &Player::SetClock}, {"type", &Player::Type},         {"choose", &Player::Choose},
      {"tick", &Player::Tick},      {"untick", &Player::Untick},     {"doubleclick", &Player::DoubleClick},
      {"click", &Player::Click},    {"answer", &Player::PutAnswer},  {"file", &Player::PutFile},
      {"write", &Player::Write},    {"cat", &Player::Cat},           {"ls", &Player::List},
      {"reopen", &Player::Reopen},  {"show", &Player::Show},         {"lcm", &Player::Lcm},
      {"page", &Player::Page},      {"division", &Player::Division},
  };
  (this->*Named(commands, command))(rest);
}

/// The view of a new screen is the index read at program start. There are no settings then, so it is 0.
void Player::Open() {
  study_.reset();
  study_ = std::make_unique<CaseStudy>(record_, ports_, 0);
  if (shown_.empty()) shown_ = Snapshot(*study_);
}

std::string Player::Path(std::string_view name) const { return Join(folders_.Folder, "/", name); }

void Player::SetClock(std::string_view rest) {
  DateTime time;
  const auto part = [&](std::size_t at, std::size_t size) {
    return IndexUpTo(rest.size() == 19 ? rest.substr(at, size) : "", 9999);
  };
  time = {part(0, 4), part(5, 2), part(8, 2), part(11, 2), part(14, 2), part(17, 2)};
  clock_.Time = time;
}

void Player::Type(std::string_view rest) {
  const Control field = ParseControl(TakeWord(rest));
  if (field.Name != "Text1" || !HasField(field.Index)) throw UnknownCommand();
  study_->Text1(field.Index).Text = std::string(rest);
}

void Player::Choose(std::string_view rest) { study_->Combo1.ListIndex = IndexUpTo(rest, 1); }
void Player::Tick(std::string_view rest) { study_->Check1(IndexUpTo(rest, 11)).Value = 1; }
void Player::Untick(std::string_view rest) { study_->Check1(IndexUpTo(rest, 11)).Value = 0; }

void Player::DoubleClick(std::string_view rest) {
  const Control control = ParseControl(rest);
  if (control.Name == "Label1" && HasLabel(control.Index)) return study_->Label1_DblClick(control.Index);
  if (control.Name == "Text1" && HasField(control.Index)) return study_->Text1_DblClick(control.Index);
  if (control.Name == "Image37" && control.Index >= 0 && control.Index <= 5) {
    return study_->Image37_DblClick(control.Index);
  }
  if (rest == "Label13") return study_->Label13_DblClick();
  throw UnknownCommand();
}

void Player::Click(std::string_view rest) {
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
  const Handler handler = Named(handlers, rest);
  if ((rest == "AulRad" && !study_->AulRad.Enabled) || (rest == "AulRadd" && !study_->AulRadd.Visible)) {
    out_ << "  not available\n";
    return;
  }
  (study_.get()->*handler)();
}

void Player::PutAnswer(std::string_view rest) {
  static constexpr std::pair<std::string_view, Answer> answers[] = {
      {"Yes", Answer::Yes}, {"No", Answer::No}, {"Cancel", Answer::Cancel}};
  boxes_.Answers.push_back(Named(answers, rest));
}

void Player::PutFile(std::string_view rest) {
  if (rest.empty()) throw UnknownCommand();
  dialog_.Paths.emplace_back(rest);
}

void Player::Write(std::string_view rest) {
  const std::string name(TakeWord(rest));
  if (!IsFileName(name)) throw UnknownCommand();
  try {
    fs::remove(Path(name));
    WriteSafely(folders_, Path(name), Join(rest, CRLF), Replace::Nothing);
  } catch (const Failure&) {
    throw UnknownCommand();
  } catch (const fs::filesystem_error&) {
    throw UnknownCommand();
  }
}

void Player::Cat(std::string_view rest) {
  try {
    if (!IsFileName(rest)) throw Failure(FileNotFound);
    PrintPieces(out_, "  | ", ReadWholeFile(Path(rest)));
  } catch (const Failure&) {
    out_ << "  no file\n";
  }
}

void Player::List(std::string_view rest) {
  if (!rest.empty()) throw UnknownCommand();
  for (const std::string& name : NamesIn(folders_.Folder)) out_ << "  " << Escaped(name) << '\n';
}

void Player::Reopen(std::string_view rest) {
  if (!rest.empty()) throw UnknownCommand();
  study_->Form_QueryUnload();
  Open();
}

void Player::Show(std::string_view rest) {
  if (!rest.empty()) throw UnknownCommand();
  PrintRecord(out_, record_);
}

void Player::Lcm(std::string_view rest) {
  int count = 0;
  while (!rest.empty()) {
    const std::optional<int> number = Number(TakeWord(rest));
    const bool fits = number && *number >= -32768 && *number <= 32767;
    if (!fits || count == record_.LcmDen.Size) throw UnknownCommand();
    record_.LcmDen(count++) = Integer(*number);
  }
  record_.LcmCount = Integer(count);
  try {
    FindLCM(record_);
  } catch (const Failure& failure) {
    boxes_.Inform(BoxStyle::Plain, Join(failure.Number, CRLF, failure.Description()));
  }
  out_ << "  LcmResult = " << record_.LcmResult.Value() << "\n  LcmDen =";
  for (int i = 0; i < count; ++i) out_ << ' ' << record_.LcmDen(i).Value();
  out_ << (count == 0 ? " \n" : "\n");
}

void Player::Page(std::string_view rest) {
  const std::optional<int> number = Number(rest);
  if (!number) throw UnknownCommand();
  GuardedEvent(boxes_, [&] {
    ShellRecord shell;
    shell.LawPage = Integer(*number);
    PrintPage(QurLaws(shell, boxes_));
  });
}

void Player::PrintPage(const QurLaws& form) const {
  if (form.Text1.Text.Get().empty()) {
    out_ << "  no page\n";
    return;
  }
  out_ << "  Text1 = " << Escaped(form.Text1.Text.Get()) << "\n  Text2:\n";
  PrintPieces(out_, "  | ", form.Text2.Text.Get());
}

void Player::Division(std::string_view rest) {
  using faraid::School;
  static constexpr std::pair<std::string_view, School> schools[] = {{"hanafi", School::Hanafi},
                                                                    {"maliki", School::Maliki},
                                                                    {"shafii", School::Shafii},
                                                                    {"hanbali", School::Hanbali}};
  const School school = Named(schools, TakeWord(rest));
  const bool consent = rest == "consent";
  if (!consent && !rest.empty()) throw UnknownCommand();
  for (const std::string& line : DivisionLines(ReadDivisionInput(ReadScreen(*study_, consent)), school)) {
    out_ << "  | " << Escaped(line) << '\n';
  }
}

}  // namespace qismora::testing
