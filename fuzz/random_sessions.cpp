// Plays a number of random sessions on one record, each on a new screen. It prints their speed and fails when
// memory grows.
//   random_sessions SESSIONS [SEED [print]]
// With "print", it prints every line that it plays: the last lines before a crash are the script that caused
// it.

#include <unistd.h>

#include <chrono>
#include <cstring>
#include <filesystem>
#include <iostream>

#include "fuzz/Invariants.h"
#include "fuzz/Obstacles.h"
#include "fuzz/RandomLines.h"
#include "player/Player.h"
#include "support/Memory.h"
#include "support/TemporaryFolder.h"

namespace fs = std::filesystem;
using namespace qismora;
using namespace qismora::testing;

namespace {

// The sanitizer does not return freed memory, so growth means nothing there.
#ifdef QISMORA_SANITIZED
constexpr bool memoryIsMeasured = false;
#else
constexpr bool memoryIsMeasured = true;
#endif
constexpr long mostGrowth = 1024;
constexpr unsigned longestSession = 20;
constexpr int sessionsBetweenClearings = 100;

void Clear(const TemporaryFolder& folder) {
  for (const auto& entry : fs::directory_iterator(folder.Path())) fs::remove_all(entry.path());
}

/// Sessions on one record, whose values carry over from one session to the next.
class Sessions {
 public:
  Sessions(std::uint64_t seed, bool print) : random_(seed), print_(print) {}

  void Play(int count) {
    for (int session = 0; session < count; ++session) {
      // A session that hangs ends the program.
      alarm(longestSession);
      if (session % sessionsBetweenClearings == 0) Clear(folder_);
      PlayOne();
    }
    alarm(0);
  }

 private:
  void PlayOne() {
    Print("# a new screen");
    Player player(record_, nowhere_, folder_.Path());
    for (std::size_t lines = 5 + random_.Below(40); lines > 0; --lines) {
      const std::string line = random_.Next();
      if (random_.Below(8) == 0) Print("# " + obstacles_.Place(random_));
      player.Boxes().QuestionsEnd = random_.Below(16) == 0;
      if (player.Boxes().QuestionsEnd) Print("# questions end unanswered");
      Print(line);
      const bool command = line.starts_with("click ");
      if (command) obstacles_.Look(player.Boxes());
      player.Perform(line);
      CheckInvariants(player.Study(), record_);
      if (command) obstacles_.Check(player.Boxes());
    }
  }

  void Print(const std::string& line) const {
    if (print_) std::cout << line << std::endl;
  }

  RandomLines random_;
  bool print_;
  std::ostream nowhere_{nullptr};
  TemporaryFolder folder_;
  Obstacles obstacles_{folder_.Path()};
  CaseRecord record_;
};

}  // namespace

int main(int argc, char** argv) {
  if (argc < 2) {
    std::cerr << "usage: random_sessions SESSIONS [SEED [print]]\n";
    return 2;
  }
  const int count = std::stoi(argv[1]);
  const std::uint64_t seed = argc > 2 ? std::stoull(argv[2]) : std::random_device()();
  const bool print = argc > 3 && std::strcmp(argv[3], "print") == 0;
  std::cout << count << " random sessions with the seed " << seed << std::endl;

  if (fs::exists("/dev/shm")) setenv("TMPDIR", "/dev/shm", 0);
  Sessions sessions(seed, print);
  const auto begin = std::chrono::steady_clock::now();
  // Memory is compared after the first tenth, which fills the caches of the allocator.
  sessions.Play(count / 10);
  const long atStart = ResidentKilobytes();
  sessions.Play(count / 2 - count / 10);
  const long atHalf = ResidentKilobytes();
  sessions.Play(count - count / 2);
  const long atEnd = ResidentKilobytes();
  const std::chrono::duration<double> took = std::chrono::steady_clock::now() - begin;

  std::cout << static_cast<long>(count / took.count()) << " sessions a second; resident " << atStart
            << " KiB at the start, " << atHalf << " KiB at half, " << atEnd << " KiB at the end\n";
  if (memoryIsMeasured && atEnd - atHalf > mostGrowth) {
    std::cerr << "memory has grown\n";
    return 1;
  }
  return 0;
}
