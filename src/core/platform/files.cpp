#include "core/platform/files.h"

#include <chrono>
#include <system_error>
#include <thread>

#include "core/platform/errors.h"
#include "core/platform/file_errors.h"
#include "core/platform/staged_file.h"

namespace vendlingua {
namespace {

namespace fs = std::filesystem;
using Access = FileHandle::Access;

// What cannot be done with a file that is opened for `access`.
UiTextId ActionOf(Access access) {
  return access == Access::kRead ? UiTextId::kCannotBeOpened : UiTextId::kCannotBeWritten;
}

UiTextId NoFileFor(Access access) {
  return access == Access::kRead ? UiTextId::kNoReadableFile : UiTextId::kNoWritableFile;
}

// Windows takes the name of a file away for a moment while it is replaced.
#ifdef _WIN32
constexpr int kOpenTries = 5;
#else
constexpr int kOpenTries = 1;
#endif
constexpr std::chrono::milliseconds kMoment(2);

std::error_code TryToOpen(FileHandle& file, const fs::path& path, Access access) {
  std::error_code error;
  const fs::file_status status = fs::status(path, error);
  if (!fs::exists(status)) {
    return error ? error : std::make_error_code(std::errc::no_such_file_or_directory);
  }
  if (access == Access::kChange && fs::is_directory(status)) {
    return std::make_error_code(std::errc::is_a_directory);
  }
  if (!fs::is_regular_file(status)) {
    throw FileError(path, NoFileFor(access));
  }
  return file.Open(path, access);
}

}  // namespace

std::string ReadFile(const fs::path& path, std::uint64_t limit) {
  FileHandle file;
  OpenRegularFile(file, path, Access::kRead);
  return ReadWhole(file, path, limit);
}

std::string ReadWhole(FileHandle& file, const fs::path& path, std::uint64_t limit) {
  std::uint64_t size = 0;
  RequireDone(path, UiTextId::kCannotBeRead, file.GetSize(size));
  if (size > limit) {
    throw FileError(path, UiTextId::kFileIsTooLarge, size, limit);
  }
  std::string content(size, '\0');
  RequireDone(path, UiTextId::kCannotBeRead, file.ReadAt(0, content));
  return content;
}

void OpenRegularFile(FileHandle& file, const fs::path& path, Access access) {
  std::error_code error = TryToOpen(file, path, access);
  for (int tries = 1; tries < kOpenTries && error == std::errc::no_such_file_or_directory;
       ++tries) {
    std::this_thread::sleep_for(kMoment);
    error = TryToOpen(file, path, access);
  }
  RequireDone(path, ActionOf(access), error);
  // Something else may have taken its place meanwhile.
  if (!file.IsRegularFile()) {
    throw FileError(path, NoFileFor(access));
  }
}

void WriteFile(const fs::path& path, std::initializer_list<std::string_view> pieces) {
  StagedFile staged(path);
  for (const std::string_view piece : pieces) {
    staged.Write(piece);
  }
  staged.Commit();
}

}  // namespace vendlingua
