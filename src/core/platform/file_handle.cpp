#include "core/platform/file_handle.h"

#include <utility>

#ifdef _WIN32
#include <windows.h>

#include <algorithm>
#else
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#endif

namespace vendlingua {

namespace fs = std::filesystem;

FileHandle::~FileHandle() {
  if (IsOpen()) {
    Close();
  }
}

#ifdef _WIN32
namespace {

constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

std::error_code LastError() {
  const DWORD error = GetLastError();
  if (error == ERROR_FILE_EXISTS || error == ERROR_ALREADY_EXISTS) {
    return std::make_error_code(std::errc::file_exists);
  }
  return {static_cast<int>(error), std::system_category()};
}

std::error_code ResultOf(BOOL done) { return done != 0 ? std::error_code() : LastError(); }

}  // namespace

std::error_code FileHandle::CreateNew(const fs::path& path) {
  handle_ = CreateFileW(path.c_str(), GENERIC_WRITE, kShareAll, nullptr, CREATE_NEW,
                        FILE_ATTRIBUTE_NORMAL, nullptr);
  return ResultOf(IsOpen());
}

std::error_code FileHandle::Open(const fs::path& path) {
  handle_ = CreateFileW(path.c_str(), GENERIC_WRITE, kShareAll, nullptr, OPEN_EXISTING,
                        FILE_FLAG_OPEN_REPARSE_POINT, nullptr);
  return ResultOf(IsOpen());
}

std::error_code FileHandle::Write(std::string_view bytes) {
  constexpr std::size_t kMostAtOnce = std::size_t{1} << 30U;
  while (!bytes.empty()) {
    DWORD written = 0;
    const auto length = static_cast<DWORD>(std::min(bytes.size(), kMostAtOnce));
    if (WriteFile(handle_, bytes.data(), length, &written, nullptr) == 0) {
      return LastError();
    }
    bytes.remove_prefix(written);
  }
  return {};
}

// A new file may be written and read, which is all that there is to say here.
std::error_code FileHandle::SetPermissions(fs::perms /*permissions*/) { return {}; }

std::error_code FileHandle::Flush() { return ResultOf(FlushFileBuffers(handle_)); }

std::error_code FileHandle::Close() { return ResultOf(CloseHandle(std::exchange(handle_, kNone))); }

void FlushFolder(const fs::path& /*folder*/) {}

#else
namespace {

std::error_code ResultOf(int result) {
  return result == -1 ? std::error_code(errno, std::generic_category()) : std::error_code();
}

}  // namespace

std::error_code FileHandle::CreateNew(const fs::path& path) {
  constexpr mode_t kModeOfNewFiles = 0666;
  handle_ =
      open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, kModeOfNewFiles);
  return ResultOf(handle_);
}

std::error_code FileHandle::Open(const fs::path& path) {
  handle_ = open(path.c_str(), O_WRONLY | O_NOFOLLOW | O_CLOEXEC);
  return ResultOf(handle_);
}

std::error_code FileHandle::Write(std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written = write(handle_, bytes.data(), bytes.size());
    if (written == -1 && errno == EINTR) {
      continue;
    }
    if (written == -1) {
      return ResultOf(-1);
    }
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
  return {};
}

std::error_code FileHandle::SetPermissions(fs::perms permissions) {
  return ResultOf(fchmod(handle_, static_cast<mode_t>(permissions & fs::perms::mask)));
}

std::error_code FileHandle::Flush() {
  const std::error_code error = ResultOf(fsync(handle_));
  const bool cannot_tell =
      error == std::errc::invalid_argument || error == std::errc::not_supported;
  return cannot_tell ? std::error_code() : error;
}

std::error_code FileHandle::Close() { return ResultOf(close(std::exchange(handle_, kNone))); }

void FlushFolder(const fs::path& folder) {
  const int handle = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (handle != -1) {
    fsync(handle);
    close(handle);
  }
}

#endif

}  // namespace vendlingua
