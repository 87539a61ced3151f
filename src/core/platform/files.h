#ifndef VENDLINGUA_CORE_PLATFORM_FILES_H_
#define VENDLINGUA_CORE_PLATFORM_FILES_H_

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace vendlingua {

/// What a message file, a source or a language file may at most hold. The largest of them, a ".MES"
/// file with 101 blocks of 32,767 bytes, stays below 4 MiB.
inline constexpr std::uint64_t kMessageFileLimit = 16U << 20U;

/// The whole content of the regular file `path`, byte by byte. Throws FileError when it is missing,
/// is no regular file, cannot be read or is longer than `limit` bytes.
std::string ReadFile(const std::filesystem::path& path, std::uint64_t limit = kMessageFileLimit);

/// Creates or replaces the file `path` with `pieces`, one behind the other. It takes its name, or
/// the place of an older one, when it is complete and on the disk; otherwise all stays as it was.
/// Throws FileError.
void WriteFile(const std::filesystem::path& path, std::initializer_list<std::string_view> pieces);

/// Creates or replaces the file `path` with `content`. Throws FileError.
inline void WriteFile(const std::filesystem::path& path, std::string_view content) {
  WriteFile(path, {content});
}

/// Bytes that take the place of those at `position`, counted from 0.
struct FilePatch {
  std::int64_t position;
  std::string bytes;

  bool operator==(const FilePatch&) const = default;
};

/// Changes the file `path` in place: bytes that no patch covers keep their values. Throws FileError
/// when it is not there or cannot be written.
void ApplyPatches(const std::filesystem::path& path, const std::vector<FilePatch>& patches);

/// A file that is changed in place: opened without truncation, bytes that are not written keep
/// their values. Every operation throws FileError when it fails, FolderNotReadyError when the
/// folder is gone.
class PatchFile {
 public:
  enum class IfMissing { kFail, kCreate };

  PatchFile(std::filesystem::path path, IfMissing if_missing);

  /// Writes `bytes` from `position` on, counted from 0. A gap behind the old end is filled with 0.
  /// Errors name the position as users count it, from 1.
  void WriteAt(std::int64_t position, std::string_view bytes);

  /// Hands everything to the system; only then has the patch succeeded.
  void Close();

 private:
  std::filesystem::path path_;
  std::fstream stream_;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_PLATFORM_FILES_H_
