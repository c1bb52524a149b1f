#pragma once

#include <string>
#include <string_view>

#include "base/Files.h"
#include "base/Ports.h"

namespace qismora {

/// What a new file may replace. Directories, pipes and devices are never replaced, nor files that the user
/// may not write to.
enum class Replace {
  Nothing,        ///< throws Failure(FileAlreadyExists) if the name is taken
  WithoutAsking,  ///< an ordinary file that has no second hard link
  Agreed,         ///< with the user's consent: an ordinary file, or a link, but not its target
};

/// A file that gets its name when it is complete on the disk. Until then it has a temporary name in the same
/// directory, and an earlier file with its name does not change. It gets the permissions of the file that it
/// replaces. Without a commit, the destructor removes it. The constructor removes unfinished files of
/// programs that were killed.
class NewFile {
 public:
  /// Fails if the file cannot be written, before there is anything to write.
  NewFile(StandardFolders& folders, const std::string& path, Replace replace);
  ~NewFile();
  NewFile(const NewFile&) = delete;
  NewFile& operator=(const NewFile&) = delete;

  /// Synchronizes the content to the disk and gives the file its name.
  void Commit(std::string_view content);

 private:
  void Create();
  void TakeName();

  StandardFolders& folders_;
  std::string path_;
  std::string folder_;
  Replace replace_;
  std::string unfinished_;
  Descriptor file_;
};

/// Writes a whole file at once.
void WriteSafely(StandardFolders& folders, const std::string& path, std::string_view content,
                 Replace replace);

}  // namespace qismora
