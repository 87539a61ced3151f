#include "support/full_disk.h"

namespace vendlingua::test {

#ifdef _WIN32

FullDisk::FullDisk(std::size_t /*bytes*/) {}

FullDisk::~FullDisk() = default;

#else

// The signal would end the process; ignored, it lets the write fail.
FullDisk::FullDisk(std::size_t bytes) : handler_before_(std::signal(SIGXFSZ, SIG_IGN)) {
  getrlimit(RLIMIT_FSIZE, &limit_before_);
  const rlimit limit{bytes, limit_before_.rlim_max};
  setrlimit(RLIMIT_FSIZE, &limit);
}

FullDisk::~FullDisk() {
  setrlimit(RLIMIT_FSIZE, &limit_before_);
  std::signal(SIGXFSZ, handler_before_);
}

#endif

}  // namespace vendlingua::test
