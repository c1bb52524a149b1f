#include "fuzz/Obstacles.h"

#include <sys/stat.h>

#include <fstream>

#include "base/Files.h"
#include "base/Text.h"
#include "fuzz/Invariants.h"

namespace qismora::testing {

namespace fs = std::filesystem;

namespace {

constexpr const char* names[] = {"FullReport", "FullReport", "zayd.txt", "out.txt", ".txt", "..txt"};

constexpr const char* kinds[] = {"nothing",   "link", "dangling link", "link to a device",
                                 "hard link", "pipe", "directory",     "private file"};

constexpr auto ownerOnly = fs::perms::owner_read | fs::perms::owner_write;

}  // namespace

bool Obstacles::Entry::operator==(const Entry& other) const {
  return Status.type() == other.Status.type() && Status.permissions() == other.Status.permissions() &&
         Content == other.Content;
}

std::string Obstacles::Place(RandomLines& random) {
  const std::string name = names[random.Below(std::size(names))];
  const std::string kind = kinds[random.Below(std::size(kinds))];
  const std::string path = Join(folder_, "/", name);
  const std::string target = elsewhere_.File("file");
  if (!fs::exists(target)) std::ofstream(target) << "not ours";
  fs::remove_all(path);
  if (kind == "link") fs::create_symlink(target, path);
  if (kind == "dangling link") fs::create_symlink(elsewhere_.File("none"), path);
  if (kind == "link to a device") fs::create_symlink("/dev/zero", path);
  if (kind == "hard link") fs::create_hard_link(target, path);
  if (kind == "pipe" && mkfifo(path.c_str(), 0600) != 0) Fault("cannot make a pipe");
  if (kind == "directory") fs::create_directory(path);
  if (kind == "private file") {
    std::ofstream(path) << "private";
    fs::permissions(path, ownerOnly);
  }
  return Join(name, ": ", kind);
}

Obstacles::Entries Obstacles::EntriesOf(const std::string& folder) {
  Entries entries;
  for (const auto& found : fs::directory_iterator(folder)) {
    Entry entry;
    entry.Status = found.symlink_status();
    if (found.is_symlink()) {
      entry.Content = fs::read_symlink(found.path()).string();
    } else if (found.is_regular_file()) {
      entry.Content = ReadWholeFile(found.path().string());
      entry.Names = found.hard_link_count();
    }
    entries[found.path().filename().string()] = entry;
  }
  return entries;
}

void Obstacles::Look(const FakeMessageBoxes& boxes) {
  before_ = EntriesOf(folder_);
  elsewhereBefore_ = EntriesOf(elsewhere_.Path());
  shownBefore_ = boxes.Shown.size();
}

void Obstacles::Check(const FakeMessageBoxes& boxes) const {
  bool reportAgreed = false;
  bool resultsAgreed = false;
  const FakeMessageBoxes::Box* unanswered = nullptr;
  for (std::size_t i = shownBefore_; i < boxes.Shown.size(); ++i) {
    const FakeMessageBoxes::Box& box = boxes.Shown[i];
    if (box.Given == Answer::Yes && box.Text.starts_with("SAVING THIS REPORT")) reportAgreed = true;
    if (box.Given == Answer::Yes && box.Text.starts_with("File with the name")) resultsAgreed = true;
    if (box.Buttons != BoxButtons::Ok && boxes.QuestionsEnd) unanswered = &box;
  }
  if (unanswered != nullptr && unanswered != &boxes.Shown.back())
    Fault("a command went on after an unanswered question");

  const Entries after = EntriesOf(folder_);
  for (const auto& [name, entry] : after) {
    if (name.starts_with(".report-")) Fault("an unfinished file is left");
    const bool own = name == "FullReport";
    const auto earlier = before_.find(name);
    if (earlier == before_.end()) {
      if (unanswered != nullptr && !own) Fault("a file was made after an unanswered question");
      continue;
    }
    if (earlier->second == entry) continue;
    const Entry& was = earlier->second;
    if (was.Status.type() == fs::file_type::regular &&
        was.Status.permissions() != entry.Status.permissions()) {
      Fault("a replaced file lost its permissions");
    }
    const bool ordinary = was.Status.type() == fs::file_type::regular && was.Names == 1;
    if (!(own && ordinary) && !reportAgreed && !resultsAgreed) Fault("a file was replaced without consent");
  }
  for (const auto& [name, entry] : before_) {
    if (!after.contains(name)) Fault("a file was deleted");
  }
  if (!resultsAgreed && EntriesOf(elsewhere_.Path()) != elsewhereBefore_)
    Fault("a file was written through a link");

  // The working file is complete before the question about the report's own name.
  const bool mayHaveWritten = unanswered == nullptr || unanswered->Text.starts_with("SAVING THIS REPORT");
  if (!mayHaveWritten && after != before_) Fault("a file was written after an unanswered question");
}

}  // namespace qismora::testing
