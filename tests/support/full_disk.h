#ifndef VENDLINGUA_TESTS_SUPPORT_FULL_DISK_H_
#define VENDLINGUA_TESTS_SUPPORT_FULL_DISK_H_

#include <sys/resource.h>

#include <csignal>
#include <cstddef>

namespace vendlingua::test {

/// While it lives this process can write no file beyond its first `bytes` bytes, as on a full disk.
class FullDisk {
 public:
  explicit FullDisk(std::size_t bytes);
  FullDisk(const FullDisk&) = delete;
  FullDisk& operator=(const FullDisk&) = delete;
  ~FullDisk();

 private:
  rlimit limit_before_{};
  void (*handler_before_)(int);
};

}  // namespace vendlingua::test

#endif  // VENDLINGUA_TESTS_SUPPORT_FULL_DISK_H_
