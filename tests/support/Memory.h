#pragma once

#include <unistd.h>

#include <fstream>

namespace qismora::testing {

/// The memory of this process that is in use now.
inline long ResidentKilobytes() {
  std::ifstream statm("/proc/self/statm");
  long size = 0;
  long resident = 0;
  statm >> size >> resident;
  return resident * sysconf(_SC_PAGESIZE) / 1024;
}

}  // namespace qismora::testing
