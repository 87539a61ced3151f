#ifndef VENDLINGUA_CORE_PLATFORM_FILES_H_
#define VENDLINGUA_CORE_PLATFORM_FILES_H_

#include <cstdint>
#include <filesystem>
#include <initializer_list>
#include <string>
#include <string_view>

#include "core/platform/file_handle.h"

namespace vendlingua {

/// What a message file, a source or a language file may at most hold. The largest of them, a ".MES"
/// file with 101 blocks of 32,767 bytes, stays below 4 MiB.
inline constexpr std::uint64_t kMessageFileLimit = 16U << 20U;

/// The whole content of the regular file `path`, byte by byte. Throws FileError when it is missing,
/// is no regular file, cannot be read or is longer than `limit` bytes.
std::string ReadFile(const std::filesystem::path& path, std::uint64_t limit = kMessageFileLimit);

/// The same of a file that is open, and whose path errors name.
std::string ReadWhole(FileHandle& file, const std::filesystem::path& path, std::uint64_t limit);

/// Opens the file that `path` leads to. Throws FileError when it is missing or may not be opened;
/// pipes, devices and folders are refused unopened.
void OpenRegularFile(FileHandle& file, const std::filesystem::path& path,
                     FileHandle::Access access);

/// Creates or replaces the file `path` with `pieces`, one behind the other. It takes its name, or
/// the place of an older one, when it is complete and on the disk; otherwise all stays as it was.
/// Throws FileError.
void WriteFile(const std::filesystem::path& path, std::initializer_list<std::string_view> pieces);

/// Creates or replaces the file `path` with `content`. Throws FileError.
inline void WriteFile(const std::filesystem::path& path, std::string_view content) {
  WriteFile(path, {content});
}

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_PLATFORM_FILES_H_
