// Plays any bytes as a script and looks for what no script may cause: a failure that escapes its event, a
// report of the sanitizers, a file outside the script's directory, a record that breaks its invariants. Lines
// that are not commands are skipped, so that a script with one wrong byte is still played.

#include <algorithm>
#include <filesystem>
#include <vector>

#include "fuzz/Invariants.h"
#include "fuzz/RandomLines.h"
#include "player/Player.h"
#include "support/TemporaryFolder.h"

namespace fs = std::filesystem;
using namespace qismora;
using namespace qismora::testing;

extern "C" {
int LLVMFuzzerInitialize(int* argc, char*** argv);
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);
std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size, std::size_t most, unsigned seed);
std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t most);
}

namespace {

/// The directory of the scripts, inside another directory that must stay empty otherwise.
class ScriptDirectory {
 public:
  ScriptDirectory() { fs::create_directory(Path()); }

  std::string Path() const { return outer_.File("scripts"); }

  void Clear() const {
    for (const auto& entry : fs::directory_iterator(outer_.Path())) {
      if (entry.path() != Path()) Fault("a script wrote outside its directory");
    }
    for (const auto& entry : fs::directory_iterator(Path())) fs::remove_all(entry.path());
  }

 private:
  TemporaryFolder outer_;
};

std::vector<std::string> Lines(std::string_view script) {
  std::vector<std::string> lines;
  while (!script.empty()) {
    const std::size_t end = std::min(script.find('\n'), script.size());
    lines.emplace_back(script.substr(0, end));
    script.remove_prefix(std::min(end + 1, script.size()));
  }
  return lines;
}

/// Inserts, removes, duplicates or swaps lines.
void ChangeLines(std::vector<std::string>& lines, RandomLines& random) {
  const auto place = [&](std::size_t extra) {
    return lines.begin() + static_cast<std::ptrdiff_t>(random.Below(lines.size() + extra));
  };
  const std::size_t change = lines.empty() ? 0 : random.Below(6);
  if (change <= 2) {
    lines.insert(place(1), random.Next());
  } else if (change == 3) {
    lines.erase(place(0));
  } else if (change == 4) {
    const std::string line = *place(0);
    lines.insert(place(1), line);
  } else {
    std::iter_swap(place(0), place(0));
  }
}

}  // namespace

/// Puts the files in memory where the machine supports it, unless TMPDIR is set.
int LLVMFuzzerInitialize(int*, char***) {
  if (fs::exists("/dev/shm")) setenv("TMPDIR", "/dev/shm", 0);
  return 0;
}

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const ScriptDirectory directory;
  std::ostream nowhere(nullptr);
  {
    CaseRecord record;
    Player player(record, nowhere, directory.Path());
    for (const std::string& line : Lines({reinterpret_cast<const char*>(data), size})) {
      try {
        player.Perform(line);
      } catch (const UnknownCommand&) {
      }
      CheckInvariants(player.Study(), record);
    }
    player.Play("show");
  }
  directory.Clear();
  return 0;
}

/// Changes whole lines half of the time, since a script is a list of commands, and bytes otherwise.
std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size, std::size_t most, unsigned seed) {
  RandomLines random(seed);
  if (random.Below(2) == 0) return LLVMFuzzerMutate(data, size, most);
  std::vector<std::string> lines = Lines({reinterpret_cast<const char*>(data), size});
  for (std::size_t changes = 1 + random.Below(4); changes > 0; --changes) ChangeLines(lines, random);
  std::string script;
  for (const std::string& line : lines) script += line + '\n';
  if (script.size() > most) return LLVMFuzzerMutate(data, size, most);
  std::ranges::copy(script, data);
  return script.size();
}
