#ifndef VENDLINGUA_CORE_PLATFORM_FILE_HANDLE_H_
#define VENDLINGUA_CORE_PLATFORM_FILE_HANDLE_H_

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>

namespace vendlingua {

/// A file that is read and written through calls of the system, for what the streams of the
/// standard library cannot do: create a file that must be new, lock it, write into the middle and
/// shorten it, and wait until its bytes are on the disk. Closes itself at the end. The operations
/// return what the system says, no error when all went well; each of them goes on after an
/// interruption.
class FileHandle {
 public:
  enum class Access { kRead, kChange };
  enum class LockKind { kShared, kExclusive };

  FileHandle() = default;
  FileHandle(const FileHandle&) = delete;
  FileHandle& operator=(const FileHandle&) = delete;
  ~FileHandle();

  /// Creates `path` and opens it; std::errc::file_exists when anything is there already, a link to
  /// nothing included. The file gets the mode that any new file of this process gets.
  std::error_code CreateNew(const std::filesystem::path& path);

  /// Opens what `path` leads to; it stays as it is. Never waits for the other end of a pipe.
  std::error_code Open(const std::filesystem::path& path, Access access);

  bool IsOpen() const { return handle_ != kNone; }

  /// Whether this is a file, as opposed to a folder, a pipe or a device.
  bool IsRegularFile() const;

  std::error_code GetSize(std::uint64_t& size) const;

  /// Whether `path` leads to this very file.
  bool IsFileAt(const std::filesystem::path& path) const;

  /// Keeps other programs that lock the file from it, for as long as it is open: a shared lock
  /// those that want an exclusive one. Does not wait: std::errc::operation_would_block while
  /// another program has its lock. Any other error means that the file system knows no locks.
  std::error_code TryLock(LockKind kind);

  /// Fills `bytes` with what stands at `position`, counted from 0; they get fewer where the file
  /// ends before.
  std::error_code ReadAt(std::uint64_t position, std::string& bytes);

  /// Writes behind what was written before.
  std::error_code Write(std::string_view bytes);

  /// Writes from `position` on, counted from 0. A gap behind the old end is filled with 0.
  std::error_code WriteAt(std::uint64_t position, std::string_view bytes);

  /// Cuts the file, or lengthens it with 0.
  std::error_code Resize(std::uint64_t length);

  /// Gives the file a mode, where the system has such.
  std::error_code SetPermissions(std::filesystem::perms permissions);

  /// Lets the system begin to write the bytes to the disk, without waiting: several files that are
  /// flushed one behind the other then share the time.
  void BeginFlush();

  /// Returns when everything that was written into the file, by whomever, is on the disk. A file
  /// system that cannot tell is no error.
  std::error_code Flush();

  std::error_code Close();

 private:
#ifdef _WIN32
  using Handle = void*;
  static inline const Handle kNone = reinterpret_cast<Handle>(-1);
#else
  using Handle = int;
  static constexpr Handle kNone = -1;
#endif

  Handle handle_ = kNone;
};

/// Gives the file `from` the name `to`, in the same folder. What is there already is replaced at
/// once: whoever opens `to` meanwhile gets the old file or the new one.
std::error_code Rename(const std::filesystem::path& from, const std::filesystem::path& to);

/// Returns when the names in `folder` are on the disk as they are now, or at once where the system
/// has no way to say so.
void FlushFolder(const std::filesystem::path& folder);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_PLATFORM_FILE_HANDLE_H_
