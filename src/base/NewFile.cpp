#include "base/NewFile.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <optional>
#include <random>

#include "base/Text.h"

namespace qismora {

namespace fs = std::filesystem;

namespace {

// Of all files, case files too, so that each save removes what any earlier one has left.
constexpr std::string_view prefix = ".report-";
constexpr std::string_view suffix = ".part";

bool IsUnfinishedName(std::string_view name) {
  if (!name.starts_with(prefix) || !name.ends_with(suffix)) return false;
  name.remove_prefix(prefix.size());
  name.remove_suffix(suffix.size());
  return !name.empty() && std::ranges::all_of(name, [](char c) { return c >= '0' && c <= '9'; });
}

/// Removes an unfinished file of this user that no program has locked. A lock ends with its program.
void RemoveIfStray(const std::string& path) {
  const Descriptor file(open(path.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
  struct stat found = {};
  if (file.Get() < 0 || fstat(file.Get(), &found) != 0) return;
  if (!S_ISREG(found.st_mode) || found.st_uid != geteuid()) return;
  if (flock(file.Get(), LOCK_EX | LOCK_NB) == 0) unlink(path.c_str());
}

void RemoveStrays(const std::string& folder) {
  std::error_code unknown;
  fs::directory_iterator entry(folder, unknown);
  for (; !unknown && entry != fs::directory_iterator(); entry.increment(unknown)) {
    if (IsUnfinishedName(entry->path().filename().string())) RemoveIfStray(entry->path().string());
  }
}

/// Locks a file that was just made; false if another program has removed it as a stray in between.
bool LockNew(int file) {
  if (flock(file, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) return false;
  struct stat found = {};
  return fstat(file, &found) == 0 && found.st_nlink > 0;
}

/// The file that will be replaced; nothing if the name is free or is a link that will be replaced. Fails if
/// it may not be replaced.
std::optional<struct stat> FileToReplace(const std::string& path, Replace replace) {
  struct stat found = {};
  if (lstat(path.c_str(), &found) != 0) {
    if (errno == ENOENT) return std::nullopt;
    throw FileFailure(errno);
  }
  const char* reason = WhyNotOrdinary(found.st_mode);
  if (replace == Replace::Nothing) {
    throw FileFailure(FileAlreadyExists, reason != nullptr ? reason : "a file has this name");
  }
  if (replace == Replace::Agreed && S_ISLNK(found.st_mode)) return std::nullopt;
  if (reason != nullptr) throw FileFailure(PathFileAccess, reason);
  if (replace == Replace::WithoutAsking && found.st_nlink > 1) {
    throw FileFailure(PathFileAccess, "the file has a second name");
  }
  if (faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) != 0) throw FileFailure(errno);
  return found;
}

/// Gives the file the owner and the permissions of the earlier one. If the group cannot be kept, no other
/// group gets its permissions.
void CopyPermissions(int file, const struct stat& earlier) {
  mode_t mode = earlier.st_mode & (S_IRWXU | S_IRWXG | S_IRWXO);
  constexpr auto same = static_cast<uid_t>(-1);
  if (fchown(file, earlier.st_uid, earlier.st_gid) != 0 && fchown(file, same, earlier.st_gid) != 0) {
    mode &= ~static_cast<mode_t>(S_IRWXG);
  }
  fchmod(file, mode);  // some disks know no permissions
}

}  // namespace

NewFile::NewFile(StandardFolders& folders, const std::string& path, Replace replace)
    : folders_(folders), path_(path), folder_(fs::path(path).parent_path().string()), replace_(replace) {
  RemoveStrays(folder_);
  Create();
}

NewFile::~NewFile() {
  if (!unfinished_.empty()) unlink(unfinished_.c_str());
}

// A file that replaces another is private until it gets the permissions of that one.
void NewFile::Create() {
  const mode_t mode = FileToReplace(path_, replace_) ? 0600 : 0666;
  for (bool held = false; !held;) {
    const std::string name = Join(prefix, std::to_string(std::random_device()()), suffix);
    const std::string path = (fs::path(folder_) / name).string();
    Descriptor file(open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode));
    if (file.Get() < 0 && errno == EEXIST) continue;
    if (file.Get() < 0) throw FileFailure(errno);
    held = LockNew(file.Get());
    if (!held) continue;
    file_ = std::move(file);
    unfinished_ = path;
  }
}

// The directory is synchronized before and after the move. Before it, a disk error leaves the earlier file
// unchanged; after it, the saved file survives a power failure.
void NewFile::Commit(std::string_view content) {
  WriteAll(file_.Get(), content);
  if (const auto earlier = FileToReplace(path_, replace_)) CopyPermissions(file_.Get(), *earlier);
  folders_.WriteThrough(unfinished_);
  folders_.WriteThrough(folder_);
  TakeName();
  unfinished_.clear();
  folders_.WriteThrough(folder_);
}

void NewFile::TakeName() {
#ifdef RENAME_NOREPLACE
  if (replace_ == Replace::Nothing) {
    if (renameat2(AT_FDCWD, unfinished_.c_str(), AT_FDCWD, path_.c_str(), RENAME_NOREPLACE) == 0) return;
    if (errno != EINVAL && errno != ENOSYS) throw FileFailure(errno);
  }
#endif
  FileToReplace(path_, replace_);
  if (rename(unfinished_.c_str(), path_.c_str()) != 0) throw FileFailure(errno);
}

void WriteSafely(StandardFolders& folders, const std::string& path, std::string_view content,
                 Replace replace) {
  NewFile file(folders, path, replace);
  file.Commit(content);
}

}  // namespace qismora
