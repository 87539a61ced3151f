#ifndef VENDLINGUA_CORE_PLATFORM_LOCKED_FILE_H_
#define VENDLINGUA_CORE_PLATFORM_LOCKED_FILE_H_

#include <cstdint>
#include <filesystem>
#include <string>

#include "core/platform/file_handle.h"
#include "core/platform/files.h"

namespace vendlingua {

/// A file that is read or changed while no other program changes it. The lock is advisory: it holds
/// for programs that ask for it, too, and ends with this object, or with the process.
class LockedFile {
 public:
  using Access = FileHandle::Access;

  /// Opens the regular file that `path` leads to and waits for its lock; one that changes the file
  /// keeps all others from it. Throws FileError when it cannot be opened, or when another program
  /// has had it for ten seconds.
  LockedFile(std::filesystem::path path, Access access);

  const std::filesystem::path& path() const { return path_; }
  FileHandle& handle() { return handle_; }

  /// False where the file system knows no locks, as that of some network folders.
  bool is_locked() const { return is_locked_; }

  /// The whole content, byte by byte. Throws FileError as ReadFile().
  std::string Read(std::uint64_t limit = kMessageFileLimit) {
    return ReadWhole(handle_, path_, limit);
  }

 private:
  bool Lock(FileHandle::LockKind kind);

  std::filesystem::path path_;
  FileHandle handle_;
  bool is_locked_ = false;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_PLATFORM_LOCKED_FILE_H_
