#include "base/Files.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstdint>
#include <filesystem>
#include <system_error>
#include <thread>

#include "base/Text.h"

namespace qismora {

namespace fs = std::filesystem;

namespace {

struct ErrorRow {
  int Error;
  int Number;
  const char* Reason;
};

constexpr ErrorRow errors[] = {
    {ENOENT, PathNotFound, "the folder does not exist"},
    {ENOTDIR, PathNotFound, "the folder does not exist"},
    {EACCES, PermissionDenied, "you have no permission"},
    {EPERM, PermissionDenied, "you have no permission"},
    {EEXIST, FileAlreadyExists, "the name is taken"},
    {EROFS, PathFileAccess, "the disk is read-only"},
    {ENOSPC, PathFileAccess, "the disk is full"},
    {EDQUOT, PathFileAccess, "your share of the disk is full"},
    {EFBIG, PathFileAccess, "the file is too large"},
    {ENAMETOOLONG, PathFileAccess, "the name is too long"},
    {EINVAL, PathFileAccess, "the name is not possible on this disk"},
    {EISDIR, PathFileAccess, "a folder has this name"},
    {ELOOP, PathFileAccess, "the name is a link"},
    {EIO, PathFileAccess, "the disk reports an error"},
};

const ErrorRow* FindError(int error) {
  const auto* row = std::ranges::find(errors, error, &ErrorRow::Error);
  return row == std::end(errors) ? nullptr : row;
}

void RequireOrdinary(const struct stat& found) {
  if (const char* reason = WhyNotOrdinary(found.st_mode)) throw FileFailure(PathFileAccess, reason);
}

/// Opens an ordinary file. It is checked before it is opened, because opening a device may have effects, and
/// again afterwards, because another program may have replaced it.
Descriptor OpenOrdinary(const std::string& path, int way, struct stat& found) {
  constexpr int never = O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC | O_NOCTTY;
  constexpr mode_t mode = 0666;
  if (lstat(path.c_str(), &found) == 0) RequireOrdinary(found);
  Descriptor file(open(path.c_str(), way | never, mode));
  if (file.Get() < 0 || fstat(file.Get(), &found) != 0) throw FileFailure(errno);
  RequireOrdinary(found);
  return file;
}

/// Locks the file for at most a second, while other programs add their lines. False if it cannot be locked.
bool Lock(int file) {
  constexpr auto step = std::chrono::milliseconds(5);
  for (int tries = 200; tries > 0; --tries) {
    if (flock(file, LOCK_EX | LOCK_NB) == 0) return true;
    if (errno != EWOULDBLOCK) return false;
    std::this_thread::sleep_for(step);
  }
  return false;
}

/// The line break that the last line of an open file of this size lacks.
std::string_view MissingEnd(int file, off_t size) {
  char last = '\n';
  if (size > 0 && pread(file, &last, 1, size - 1) != 1) throw FileFailure(EIO);
  if (last == '\n') return "";
  return last == '\r' ? "\n" : CRLF;
}

}  // namespace

FileFailure::FileFailure(int error) : Failure(PathFileAccess) {
  const ErrorRow* row = FindError(error);
  if (row != nullptr) Number = row->Number;
  Reason = row != nullptr ? row->Reason : std::generic_category().message(error);
}

const char* WhyNotOrdinary(unsigned mode) {
  if (S_ISREG(mode)) return nullptr;
  if (S_ISDIR(mode)) return "a folder has this name";
  if (S_ISLNK(mode)) return "the name is a link";
  return "the name belongs to a pipe or a device";
}

Descriptor::~Descriptor() {
  if (file_ >= 0) close(file_);
}

InputFile::InputFile(const std::string& path) {
  struct stat found = {};
  if (lstat(path.c_str(), &found) != 0 && errno == ENOENT) throw Failure(FileNotFound);
  file_ = OpenOrdinary(path, O_RDONLY, found);
}

std::size_t InputFile::Read(char* to, std::size_t size) {
  std::size_t all = 0;
  while (all < size) {
    const ssize_t some = read(file_.Get(), to + all, size - all);
    if (some < 0 && errno == EINTR) continue;
    if (some < 0) throw FileFailure(errno);
    if (some == 0) break;
    all += static_cast<std::size_t>(some);
  }
  return all;
}

bool FileExists(const std::string& path) {
  std::error_code ignored;
  return fs::is_regular_file(path, ignored);
}

Long FileLength(const std::string& path) {
  std::error_code error;
  const std::uintmax_t length = fs::file_size(path, error);
  if (error) throw Failure(FileNotFound);
  return Long(static_cast<std::int64_t>(std::min<std::uintmax_t>(length, INT64_MAX)));
}

void AppendLine(const std::string& path, std::string_view line) {
  struct stat found = {};
  const Descriptor file = OpenOrdinary(path, O_RDWR | O_APPEND | O_CREAT, found);
  if (found.st_nlink > 1) throw FileFailure(PathFileAccess, "the file has a second name");
  const bool locked = Lock(file.Get());
  const off_t size = lseek(file.Get(), 0, SEEK_END);
  try {
    WriteAll(file.Get(), Join(MissingEnd(file.Get(), size), line, CRLF));
  } catch (const FileFailure&) {
    // An incomplete line is removed. No other line can follow it yet.
    if (locked && ftruncate(file.Get(), size) != 0) throw FileFailure(errno);
    throw;
  }
}

bool IsFileName(std::string_view name) {
  return !name.empty() && name != "." && name != ".." &&
         name.find_first_of(std::string_view("/\\\0", 3)) == std::string_view::npos;
}

std::vector<std::string> ListFiles(const std::string& folder) {
  std::vector<std::string> names;
  std::error_code error;
  fs::directory_iterator entry(folder, error);
  for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
    std::error_code unknown;
    if (!entry->is_directory(unknown)) names.push_back(entry->path().filename().string());
  }
  if (error) throw FileFailure(error.value());
  return names;
}

std::string FollowLinks(std::string path) {
  constexpr int longestChain = 40;
  std::error_code unknown;
  for (int links = 0; fs::is_symlink(fs::symlink_status(path, unknown)); ++links) {
    const fs::path target = fs::read_symlink(path, unknown);
    if (unknown || links == longestChain) throw FileFailure(ELOOP);
    path = (fs::path(path).parent_path() / target).string();
  }
  return path;
}

void WriteAll(int file, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t some = write(file, bytes.data(), bytes.size());
    if (some < 0 && errno == EINTR) continue;
    if (some < 0) throw FileFailure(errno);
    bytes.remove_prefix(static_cast<std::size_t>(some));
  }
}

// A directory without permission to read cannot be opened, and some disks do not support synchronizing;
// neither is a failure.
void SyncToDisk(const std::string& path) {
  const Descriptor file(open(path.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
  if (file.Get() < 0 && errno == EACCES) return;
  if (file.Get() < 0 || (fsync(file.Get()) != 0 && errno != EINVAL)) throw FileFailure(errno);
}

}  // namespace qismora
