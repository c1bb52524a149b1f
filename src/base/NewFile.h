#pragma once

#include <string>
#include <string_view>

#include "base/Files.h"
#include "base/Outside.h"

namespace qismora {

/// What a new file may take the place of. Folders, pipes and devices are never replaced, and no file that the
/// user may not write to.
enum class Replace {
  Nothing,  ///< a name that is taken is the failure 58
  OwnFile,  ///< unasked: an ordinary file without a second name
  Agreed,   ///< with the user's consent: an ordinary file, or a link, which goes while its target stays
};

/// A file that takes its name when it is complete on the disk. Until then it lies beside its place under a
/// name of its own, and what has the name stands. A replaced file hands its permissions on. An object that
/// goes without a commit leaves nothing behind; what killed programs have left in the folder is removed.
class NewFile {
 public:
  /// Fails where the file could not be written, before there is anything to write.
  NewFile(Folders& places, const std::string& path, Replace replace);
  ~NewFile();
  NewFile(const NewFile&) = delete;
  NewFile& operator=(const NewFile&) = delete;

  /// Writes the content through to the disk and gives the file its name.
  void Commit(std::string_view content);

 private:
  void Create();
  void TakeName();

  Folders& places_;
  std::string path_;
  std::string folder_;
  Replace replace_;
  std::string unfinished_;
  Descriptor file_;
};

/// Writes a whole file at once.
void WriteSafely(Folders& places, const std::string& path, std::string_view content, Replace replace);

}  // namespace qismora
