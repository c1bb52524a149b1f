#pragma once

#include <sys/resource.h>

#include <csignal>

namespace qismora::testing {

/// No file of this process grows beyond the size, as on a disk that is full.
class FullDisk {
 public:
  explicit FullDisk(rlim_t size) {
    std::signal(SIGXFSZ, SIG_IGN);
    getrlimit(RLIMIT_FSIZE, &before_);
    const rlimit limit = {size, before_.rlim_max};
    setrlimit(RLIMIT_FSIZE, &limit);
  }
  ~FullDisk() { setrlimit(RLIMIT_FSIZE, &before_); }
  FullDisk(const FullDisk&) = delete;
  FullDisk& operator=(const FullDisk&) = delete;

 private:
  rlimit before_{};
};

}  // namespace qismora::testing
