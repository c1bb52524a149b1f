// Reads a script, plays it on the Case Study screen without a window, and prints the transcript.

#include <iostream>

#include "player/Player.h"
#include "support/TemporaryFolder.h"

using namespace qismora;
using namespace qismora::testing;

/// Plays standard input in a new empty directory, to its end or to a line that is not a command.
int main() {
  std::ios::sync_with_stdio(false);
  const TemporaryFolder folder;
  CaseRecord record;
  Player player(record, std::cout, folder.Path());
  std::string line;
  for (int number = 1; std::getline(std::cin, line); ++number) {
    if (line.empty() || line.starts_with('#')) continue;
    try {
      player.Play(line);
    } catch (const UnknownCommand&) {
      std::cout.flush();
      std::cerr << "line " << number << " is not a command: " << line << '\n';
      return 2;
    }
  }
  return 0;
}
