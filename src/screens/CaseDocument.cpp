#include "screens/CaseDocument.h"

#include <algorithm>

#include "base/Files.h"
#include "base/Text.h"
#include "casefile/CaseFile.h"
#include "screens/Event.h"

namespace qismora {

namespace {

constexpr const char* section = "RecentCases";
constexpr std::string_view suffix = ".qismora";

std::string Key(int place) { return Join("File", place); }

std::string FileName(const std::string& path) { return path.substr(path.rfind('/') + 1); }

Message ReasonOf(const Failure& failure) {
  if (failure.Number == FileNotFound) return Message{"File not found"};
  const auto* file = dynamic_cast<const FileFailure*>(&failure);
  return {"{reason}", {{"reason", file != nullptr ? file->Reason : std::string(failure.Description())}}};
}

}  // namespace

CaseDocument::CaseDocument(CaseStudy& form, CasePorts& ports) : form_(form), ports_(ports), kept_(Texts()) {
  const auto update = [this] { UpdateTitle(); };
  for (int i = 0; i < form.Text1.Size; ++i) form.Text1(i).Text.WhenChanged(update);
  for (int i = 0; i < form.Check1.Size; ++i) form.Check1(i).Value.WhenChanged(update);
  form.Combo1.ListIndex.WhenChanged(update);
  form.HeirsConsent.WhenChanged(update);
  UpdateTitle();
}

CaseTexts CaseDocument::Texts() const { return ReadScreen(form_, form_.HeirsConsent); }

std::string CaseDocument::SentenceOf(const CaseFileFault& fault) const {
  std::string sentence = Translate(MessageOf(fault.Fault, fault.Line.Text));
  if (fault.Line.Number == 0) return sentence;
  return Translate(Message{"Line {line}: {text}", {{"line", Join(fault.Line.Number)}, {"text", sentence}}});
}

std::string CaseDocument::SentenceOf(const std::vector<CaseLine>& unknown) const {
  constexpr std::size_t most = 10;
  std::string lines;
  for (std::size_t i = 0; i < std::min(most, unknown.size()); ++i) {
    const Message line{"Line {line}: {text}", {{"line", Join(unknown[i].Number)}, {"text", unknown[i].Text}}};
    Append(lines, CRLF, Translate(line));
  }
  if (unknown.size() > most) {
    const int more = static_cast<int>(unknown.size() - most);
    Append(lines, CRLF, Translate(Message{"and {number} more", {{"number", Join(more)}}}));
  }
  const Message newer{
      "A newer version of Qismora has written this file. These lines are not known here and were not read:"};
  const Message save{"Save asks for a name, so that the file keeps them."};
  return Join(Translate(newer), lines, CRLF, CRLF, Translate(save));
}

bool CaseDocument::IsChanged() const { return Texts() != kept_; }

void CaseDocument::UpdateTitle() {
  if (starting_) return;
  const bool changed = IsChanged();
  const std::string file = FileName(path_);
  if (path_.empty()) {
    Title = changed ? Translate(Message{"Not saved"}) : "";
  } else {
    Title = changed ? Translate(Message{"{file}, changed", {{"file", file}}}) : file;
  }
}

void CaseDocument::Start(const CaseTexts& texts, const std::string& path) {
  starting_ = true;
  form_.StartCase(texts);
  starting_ = false;
  path_ = path;
  kept_ = Texts();
  UpdateTitle();
}

void CaseDocument::New() {
  if (!MayLeave()) return;
  incomplete_ = false;
  Start({}, "");
}

void CaseDocument::Open() {
  GuardedEvent(ports_.Boxes, [&] {
    if (const auto path = ports_.Dialogs.AskCaseToOpen(Folder())) OpenFile(*path);
  });
}

// The file is read first: a damaged one must not cost the case on the screen.
bool CaseDocument::OpenFile(const std::string& path) {
  bool opened = false;
  GuardedEvent(ports_.Boxes, [&] {
    const auto refuse = [&](const std::string& reason) {
      const Message refusal{"{file} was not opened.", {{"file", FileName(path)}}};
      ports_.Boxes.Inform(BoxStyle::Warning, Join(Translate(refusal), CRLF, CRLF, reason));
    };
    CaseFileReading reading;
    try {
      reading = OpenCaseFile(path);
    } catch (const Failure& failure) {
      Remember(path, false);
      return refuse(Translate(ReasonOf(failure)));
    }
    if (reading.Fault) return refuse(SentenceOf(*reading.Fault));
    if (!MayLeave()) return;
    incomplete_ = !reading.Unknown.empty();
    Start(reading.Case, path);
    Remember(path, true);
    opened = true;
    if (incomplete_) ports_.Boxes.Inform(BoxStyle::Information, SentenceOf(reading.Unknown));
  });
  return opened;
}

void CaseDocument::Save() {
  GuardedEvent(ports_.Boxes, [&] { SaveOrAsk(); });
}

void CaseDocument::SaveAs() {
  GuardedEvent(ports_.Boxes, [&] { AskAndSave(); });
}

bool CaseDocument::SaveOrAsk() { return path_.empty() || incomplete_ ? AskAndSave() : SaveTo(path_); }

bool CaseDocument::AskAndSave() {
  const auto path = ports_.Dialogs.AskCaseToSave(SuggestedPath());
  return path && SaveTo(*path);
}

bool CaseDocument::SaveTo(const std::string& path) {
  const CaseTexts texts = Texts();
  try {
    SaveCaseFile(ports_.Folders, path, texts);
  } catch (const Failure& failure) {
    ports_.Boxes.Inform(BoxStyle::Critical,
                        Join(Translate(Message{"{file} could not be saved.", {{"file", FileName(path)}}}),
                             CRLF, CRLF, Translate(ReasonOf(failure))));
    return false;
  }
  path_ = path;
  kept_ = texts;
  incomplete_ = false;
  Remember(path, true);
  UpdateTitle();
  return true;
}

bool CaseDocument::MayLeave() {
  if (!IsChanged()) return true;
  bool leave = false;
  GuardedEvent(ports_.Boxes, [&] {
    const Message what = path_.empty()
                             ? Message{"This case has not been saved."}
                             : Message{"{file} has changed since it was saved.", {{"file", FileName(path_)}}};
    const Answer answer =
        ports_.Boxes.Show(BoxStyle::Warning, BoxButtons::SaveDiscardCancel,
                          Join(Translate(what), CRLF, Translate(Message{"Save it before it is closed?"})));
    leave = answer == Answer::Discard || (answer == Answer::Save && SaveOrAsk());
    if (answer == Answer::Discard) kept_ = Texts();  // so that nothing asks again
    UpdateTitle();
  });
  return leave;
}

std::vector<std::string> CaseDocument::Recent() const {
  std::vector<std::string> paths;
  for (int i = 1; i <= MostRecent; ++i) {
    std::string path = ports_.Store.Read(ApplicationTitle, section, Key(i));
    if (!path.empty()) paths.push_back(std::move(path));
  }
  return paths;
}

// A file that no longer exists is removed from the list.
void CaseDocument::Remember(const std::string& path, bool exists) {
  std::vector<std::string> paths = Recent();
  std::erase(paths, path);
  if (exists) paths.insert(paths.begin(), path);
  paths.resize(MostRecent);
  for (int i = 1; i <= MostRecent; ++i) {
    const std::string& value = paths[static_cast<std::size_t>(i - 1)];
    if (ports_.Store.Read(ApplicationTitle, section, Key(i)) == value) continue;
    ports_.Store.Write(ApplicationTitle, section, Key(i), value);
  }
}

std::string CaseDocument::Folder() const {
  const std::vector<std::string> recent = Recent();
  const std::string& known = !path_.empty() || recent.empty() ? path_ : recent.front();
  return known.empty() ? ports_.Folders.Reports() : known.substr(0, known.rfind('/'));
}

std::string CaseDocument::SuggestedPath() const {
  if (!path_.empty()) return path_;
  const std::string name = form_.Text1(NameField).Text.Get() + std::string(suffix);
  const bool usable = name.size() > suffix.size() && IsFileName(name);
  return Join(Folder(), "/", usable ? name : "case.qismora");
}

}  // namespace qismora
