// Stands between a program and the system: loaded before the C library (LD_PRELOAD), it counts the
// calls that concern the files of one folder, and lets one of them fail, be cut short or be the
// last one of the program.

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <climits>
#include <cstdarg>
#include <string>
#include <string_view>

#include "fault_plan.h"

using vendlingua::test::Die;
using vendlingua::test::Fate;
using vendlingua::test::FateOf;
using vendlingua::test::IsInFolder;
using vendlingua::test::Log;

namespace {

// Calls of functions that this library defines would come back here.
template <typename Function>
Function Real(Function /*like*/, const char* name) {
  return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

std::string AbsolutePath(int folder, const char* path) {
  std::array<char, PATH_MAX> start{};
  if (path[0] == '/') {
    return path;
  }
  if (folder == AT_FDCWD) {
    syscall(SYS_getcwd, start.data(), start.size());
  } else {
    const std::string link = "/proc/self/fd/" + std::to_string(folder);
    syscall(SYS_readlinkat, AT_FDCWD, link.c_str(), start.data(), start.size() - 1);
  }
  const std::string_view name(path);
  return name == "." ? std::string(start.data()) : std::string(start.data()) + "/" + path;
}

std::string PathOf(int file) {
  std::array<char, PATH_MAX> path{};
  const std::string link = "/proc/self/fd/" + std::to_string(file);
  syscall(SYS_readlinkat, AT_FDCWD, link.c_str(), path.data(), path.size() - 1);
  return path.data();
}

std::string Hex(std::string_view bytes) {
  constexpr std::string_view kDigits = "0123456789abcdef";
  std::string digits;
  for (const char byte : bytes) {
    digits += kDigits[static_cast<unsigned char>(byte) >> 4U];
    digits += kDigits[static_cast<unsigned char>(byte) & 15U];
  }
  return digits;
}

// Does a call on a file of the folder, or what its fate is. `details` is what the log says of it.
template <typename Call>
auto Do(const char* name, const std::string& path, const std::string& details, const Call& call)
    -> decltype(call()) {
  const Fate fate = FateOf(name);
  if (fate == Fate::kKilledBefore || fate == Fate::kKilledHalf) {
    Die();
  }
  if (fate == Fate::kFails) {
    const int error = errno;
    if (std::string_view(name) == "close") {
      call();  // whatever it says, the file is closed
    }
    Log(std::string(name) + " failed " + path + details);
    errno = error;
    return -1;
  }
  const auto result = call();
  const int error = errno;
  Log(std::string(name) + (result < 0 ? " failed " : " done ") + path + details);
  if (fate == Fate::kKilledAfter) {
    Die();
  }
  errno = error;
  return result;
}

// As Do(), for a write of `size` bytes, which may be done by half.
template <typename Call>
ssize_t DoWrite(const char* name, int file, const void* bytes, std::size_t size, off_t position,
                const Call& call) {
  const std::string path = PathOf(file);
  if (!IsInFolder(path)) {
    return call(size);
  }
  const Fate fate = FateOf(name);
  if (fate == Fate::kKilledBefore) {
    Die();
  }
  if (fate == Fate::kFails) {
    const int error = errno;
    Log(std::string(name) + " failed " + path);
    errno = error;
    return -1;
  }
  const bool half = fate == Fate::kShort || fate == Fate::kKilledHalf;
  const ssize_t written = call(half ? (size + 1) / 2 : size);
  const int error = errno;
  if (written >= 0) {
    Log(std::string(name) + " done " + path + "\t" + std::to_string(position) + "\t" +
        Hex({static_cast<const char*>(bytes), static_cast<std::size_t>(written)}));
  }
  if (fate == Fate::kKilledAfter || fate == Fate::kKilledHalf) {
    Die();
  }
  errno = error;
  return written;
}

template <typename Call>
int DoOpen(const std::string& path, int flags, const Call& call) {
  if (!IsInFolder(path)) {
    return call();
  }
  const char* name = (flags & O_CREAT) != 0 ? "create" : "open";
  return Do(name, path, "", call);
}

mode_t ModeOf(int flags, va_list arguments) {
  return (flags & O_CREAT) != 0 ? va_arg(arguments, mode_t) : 0;
}

}  // namespace

extern "C" {

#define OPEN(name)                                                          \
  int name(const char* path, int flags, ...) {                              \
    va_list arguments;                                                      \
    va_start(arguments, flags);                                             \
    const mode_t mode = ModeOf(flags, arguments);                           \
    va_end(arguments);                                                      \
    return DoOpen(AbsolutePath(AT_FDCWD, path), flags,                      \
                  [&] { return Real(&(name), #name)(path, flags, mode); }); \
  }
OPEN(open)
OPEN(open64)

#define OPENAT(name)                                                                \
  int name(int folder, const char* path, int flags, ...) {                          \
    va_list arguments;                                                              \
    va_start(arguments, flags);                                                     \
    const mode_t mode = ModeOf(flags, arguments);                                   \
    va_end(arguments);                                                              \
    return DoOpen(AbsolutePath(folder, path), flags,                                \
                  [&] { return Real(&(name), #name)(folder, path, flags, mode); }); \
  }
OPENAT(openat)
OPENAT(openat64)

ssize_t read(int file, void* bytes, size_t size) {
  const auto real = [&] { return Real(&read, "read")(file, bytes, size); };
  const std::string path = PathOf(file);
  return IsInFolder(path) ? Do("read", path, "", real) : real();
}

#define PREAD(name)                                                                      \
  ssize_t name(int file, void* bytes, size_t size, off_t position) {                     \
    const auto real = [&] { return Real(&(name), #name)(file, bytes, size, position); }; \
    const std::string path = PathOf(file);                                               \
    return IsInFolder(path) ? Do("pread", path, "", real) : real();                      \
  }
PREAD(pread)
PREAD(pread64)

ssize_t write(int file, const void* bytes, size_t size) {
  const off_t position = lseek(file, 0, SEEK_CUR);
  return DoWrite("write", file, bytes, size, position,
                 [&](size_t part) { return Real(&write, "write")(file, bytes, part); });
}

#define PWRITE(name)                                                         \
  ssize_t name(int file, const void* bytes, size_t size, off_t position) {   \
    return DoWrite("pwrite", file, bytes, size, position, [&](size_t part) { \
      return Real(&(name), #name)(file, bytes, part, position);              \
    });                                                                      \
  }
PWRITE(pwrite)
PWRITE(pwrite64)

#define FTRUNCATE(name)                                                                            \
  int name(int file, off_t length) {                                                               \
    const auto real = [&] { return Real(&(name), #name)(file, length); };                          \
    const std::string path = PathOf(file);                                                         \
    return IsInFolder(path) ? Do("ftruncate", path, "\t" + std::to_string(length), real) : real(); \
  }
FTRUNCATE(ftruncate)
FTRUNCATE(ftruncate64)

#define ON_FILE(name, logged)                                      \
  int name(int file) {                                             \
    const auto real = [&] { return Real(&(name), #name)(file); };  \
    const std::string path = PathOf(file);                         \
    return IsInFolder(path) ? Do(logged, path, "", real) : real(); \
  }
ON_FILE(fsync, "fsync")
ON_FILE(fdatasync, "fsync")
ON_FILE(close, "close")

int flock(int file, int operation) {
  const auto real = [&] { return Real(&flock, "flock")(file, operation); };
  const std::string path = PathOf(file);
  return IsInFolder(path) ? Do("flock", path, "", real) : real();
}

int fchmod(int file, mode_t mode) {
  const auto real = [&] { return Real(&fchmod, "fchmod")(file, mode); };
  const std::string path = PathOf(file);
  return IsInFolder(path) ? Do("fchmod", path, "", real) : real();
}

int rename(const char* from, const char* to) {
  const auto real = [&] { return Real(&rename, "rename")(from, to); };
  const std::string path = AbsolutePath(AT_FDCWD, to);
  return IsInFolder(path) ? Do("rename", AbsolutePath(AT_FDCWD, from), "\t" + path, real) : real();
}

#define UNLINK(name)                                                 \
  int name(const char* file) {                                       \
    const auto real = [&] { return Real(&(name), #name)(file); };    \
    const std::string path = AbsolutePath(AT_FDCWD, file);           \
    return IsInFolder(path) ? Do("unlink", path, "", real) : real(); \
  }
UNLINK(unlink)
UNLINK(remove)

}  // extern "C"
