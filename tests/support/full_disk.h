#ifndef VENDLINGUA_TESTS_SUPPORT_FULL_DISK_H_
#define VENDLINGUA_TESTS_SUPPORT_FULL_DISK_H_

#ifndef _WIN32
#include <sys/resource.h>

#include <csignal>
#endif
#include <cstddef>

namespace vendlingua::test {

/// While it lives this process can write no file beyond its first `bytes` bytes, as on a full disk.
/// Windows knows no such limit.
class FullDisk {
 public:
  explicit FullDisk(std::size_t bytes);
  FullDisk(const FullDisk&) = delete;
  FullDisk& operator=(const FullDisk&) = delete;
  ~FullDisk();

 private:
#ifndef _WIN32
  rlimit limit_before_{};
  void (*handler_before_)(int);
#endif
};

}  // namespace vendlingua::test

#endif  // VENDLINGUA_TESTS_SUPPORT_FULL_DISK_H_
