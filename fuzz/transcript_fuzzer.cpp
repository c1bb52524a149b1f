// Plays any bytes as a script and looks for what no script may bring about: a failure that leaves its event,
// a report of the sanitizers, a file outside of the script's folder, a record that breaks its promises. Lines
// that are no command are passed over, so that a script with one wrong letter still tells something.

#include <algorithm>
#include <filesystem>
#include <streambuf>
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

/// The folder of the scripts, within one of its own that must stay empty but for it.
class Playground {
 public:
  Playground() { fs::create_directory(Path()); }

  std::string Path() const { return outer_.File("scripts"); }

  void Clear() const {
    for (const auto& entry : fs::directory_iterator(outer_.Path())) {
      if (entry.path() != Path()) Fault("a script has left its folder");
    }
    for (const auto& entry : fs::directory_iterator(Path())) fs::remove_all(entry.path());
  }

 private:
  TemporaryFolder outer_;
};

/// Takes everything and keeps nothing.
class Nowhere : public std::streambuf {
  int overflow(int letter) override { return letter == EOF ? 0 : letter; }
  std::streamsize xsputn(const char*, std::streamsize count) override { return count; }
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

/// Puts a line in, takes one out, doubles one, or moves one to another place.
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

/// Files in memory, where the machine offers it, and no folder was asked for.
int LLVMFuzzerInitialize(int*, char***) {
  if (fs::exists("/dev/shm")) setenv("TMPDIR", "/dev/shm", 0);
  return 0;
}

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const Playground playground;
  static Nowhere nowhere;
  std::ostream out(&nowhere);
  {
    CaseRecord record;
    Player player(record, out, playground.Path());
    for (const std::string& line : Lines({reinterpret_cast<const char*>(data), size})) {
      try {
        player.Perform(line);
      } catch (const NoCommand&) {
      }
      CheckInvariants(player.Study(), record);
    }
    player.Play("show");
  }
  playground.Clear();
  return 0;
}

/// Half of the changes are made by lines, since a script is a row of commands; the other half by bytes.
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
