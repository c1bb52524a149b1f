#pragma once

#include <string>
#include <vector>

#include "base/Ports.h"
#include "base/Property.h"

namespace qismora {

/// The facts about the program itself.
struct ProgramFacts {
  std::string Version;
  /// The libraries that it is built with, each with its version.
  std::vector<std::string> Libraries;
};

/// A row of the program catalogue.
struct InfoRow {
  std::string Heading;
  std::string Text;
};

/// The program catalogue without its window: what this program is, who made it, what it is built with, and
/// how much memory there is.
class prginfo {
 public:
  prginfo(ProgramFacts facts, MemoryMeter& memory);

  /// Reads the memory figures again.
  void Refresh();

  std::vector<InfoRow> Rows;
  Property<std::string> TotalMemory;
  Property<std::string> FreeMemory;
  Property<std::string> UsedMemory;

 private:
  MemoryMeter& memory_;
};

}  // namespace qismora
