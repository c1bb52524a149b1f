#include "base/Files.h"

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <random>

#include "base/Failure.h"
#include "base/Text.h"

namespace qismora {

namespace fs = std::filesystem;

namespace {

/// Runs an operation of the file system; its errors are failures of the system.
template <class Operation>
auto Guarded(Operation operation) {
  try {
    return operation();
  } catch (const fs::filesystem_error&) {
    throw Failure(PathFileAccess);
  }
}

}  // namespace

TextFile::TextFile(const std::string& path) : stream_(path, std::ios::binary | std::ios::trunc) {
  if (!stream_) throw Failure(PathFileAccess);
}

void TextFile::Print(std::string_view text) {
  const std::string line = Join(text, CRLF);
  content_ += line;
  stream_ << line;
  if (!stream_) throw Failure(PathFileAccess);
}

void TextFile::Close() {
  stream_.close();
  if (!stream_) throw Failure(PathFileAccess);
}

std::string ReadWholeFile(const std::string& path) {
  std::ifstream stream(path, std::ios::binary | std::ios::ate);
  if (!stream) throw Failure(FileNotFound);
  const std::streamoff size = stream.tellg();
  std::string content(size > 0 ? static_cast<std::size_t>(size) : 0, '\0');
  stream.seekg(0);
  stream.read(content.data(), size);
  if (!stream) throw Failure(PathFileAccess);
  return content;
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
  std::ofstream stream(path, std::ios::binary | std::ios::app);
  stream << Join(line, CRLF) << std::flush;
  stream.close();
  if (!stream) throw Failure(PathFileAccess);
}

bool IsFileName(std::string_view name) {
  return !name.empty() && name != "." && name != ".." &&
         name.find_first_of(std::string_view("/\\\0", 3)) == std::string_view::npos;
}

bool FolderHolds(const std::string& folder, std::string_view name) {
  return Guarded([&] {
    for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
      if (entry.path().filename().string() == name) return true;
    }
    return false;
  });
}

void DeleteFile(const std::string& path) {
  Guarded([&] { fs::remove(path); });
}

void WriteSafely(Folders& places, const std::string& path, std::string_view content) {
  const std::string unfinished =
      (fs::path(path).parent_path() / Join(".report-", std::to_string(std::random_device()()), ".part"))
          .string();
  try {
    std::ofstream stream(unfinished, std::ios::binary | std::ios::trunc);
    stream << content;
    stream.close();
    if (!stream) throw Failure(PathFileAccess);
    places.WriteThrough(unfinished);
    Guarded([&] { fs::rename(unfinished, path); });
  } catch (const Failure&) {
    std::error_code ignored;
    fs::remove(unfinished, ignored);
    throw;
  }
}

}  // namespace qismora
