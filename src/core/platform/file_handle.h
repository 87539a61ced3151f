#ifndef VENDLINGUA_CORE_PLATFORM_FILE_HANDLE_H_
#define VENDLINGUA_CORE_PLATFORM_FILE_HANDLE_H_

#include <filesystem>
#include <string_view>
#include <system_error>

namespace vendlingua {

/// A file that is written through calls of the system, for what the streams of the standard library
/// cannot do: create a file that must be new, and wait until its bytes are on the disk. Closes
/// itself at the end. The operations return what the system says, no error when all went well.
class FileHandle {
 public:
  FileHandle() = default;
  FileHandle(const FileHandle&) = delete;
  FileHandle& operator=(const FileHandle&) = delete;
  ~FileHandle();

  /// Creates `path` and opens it; std::errc::file_exists when anything is there already, a link to
  /// nothing included. The file gets the mode that any new file of this process gets.
  std::error_code CreateNew(const std::filesystem::path& path);

  /// Opens the file at `path`, which stays as it is and is no link.
  std::error_code Open(const std::filesystem::path& path);

  bool IsOpen() const { return handle_ != kNone; }

  /// Writes behind what was written before.
  std::error_code Write(std::string_view bytes);

  /// Gives the file a mode, where the system has such.
  std::error_code SetPermissions(std::filesystem::perms permissions);

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

/// Returns when the names in `folder` are on the disk as they are now, or at once where the system
/// has no way to say so.
void FlushFolder(const std::filesystem::path& folder);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_PLATFORM_FILE_HANDLE_H_
