#pragma once

#include <filesystem>
#include <map>
#include <string>

#include "fuzz/RandomLines.h"
#include "support/FakePorts.h"
#include "support/TemporaryFolder.h"

namespace qismora::testing {

/// Entries that the file commands may find in a directory that others can write to: symbolic and hard links,
/// pipes, devices, directories, private files. Checks what each command does to them.
class Obstacles {
 public:
  explicit Obstacles(std::string folder) : folder_(std::move(folder)) {}

  /// Puts one of them under a name that the commands use. Returns a description of it.
  std::string Place(RandomLines& random);

  /// Records the entries before a command.
  void Look(const FakeMessageBoxes& boxes);
  /// Ends the program with a message when the command has deleted a file, changed one without the user's
  /// consent, written through a link that was not chosen, or left an unfinished file.
  void Check(const FakeMessageBoxes& boxes) const;

 private:
  struct Entry {
    std::filesystem::file_status Status;
    std::uintmax_t Names = 1;
    std::string Content;  ///< of an ordinary file; the target of a link

    bool operator==(const Entry& other) const;
  };
  using Entries = std::map<std::string, Entry>;

  static Entries EntriesOf(const std::string& folder);

  std::string folder_;
  TemporaryFolder elsewhere_;
  Entries before_;
  Entries elsewhereBefore_;
  std::size_t shownBefore_ = 0;
};

}  // namespace qismora::testing
