#ifdef _WIN32

#include <windows.h>

#include <algorithm>
#include <utility>

#include "core/platform/file_handle.h"

namespace vendlingua {
namespace {

namespace fs = std::filesystem;

constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
// More than a call takes is written by several.
constexpr std::size_t kMostAtOnce = std::size_t{1} << 30U;
// Locks keep others from the very bytes that are locked: this one lies behind the end of any file.
constexpr DWORD kLockedByteHigh = 0x7FFFFFFF;

std::error_code LastError() {
  switch (const DWORD error = GetLastError()) {
    case ERROR_FILE_EXISTS:
    case ERROR_ALREADY_EXISTS:
      return std::make_error_code(std::errc::file_exists);
    case ERROR_SHARING_VIOLATION:
    case ERROR_USER_MAPPED_FILE:
      return std::make_error_code(std::errc::device_or_resource_busy);
    case ERROR_LOCK_VIOLATION:
    case ERROR_IO_PENDING:
      return std::make_error_code(std::errc::operation_would_block);
    default:
      return {static_cast<int>(error), std::system_category()};
  }
}

std::error_code ResultOf(BOOL done) { return done != 0 ? std::error_code() : LastError(); }

std::error_code Seek(HANDLE handle, std::uint64_t position) {
  LARGE_INTEGER distance;
  distance.QuadPart = static_cast<LONGLONG>(position);
  return ResultOf(SetFilePointerEx(handle, distance, nullptr, FILE_BEGIN));
}

// File systems of Windows know no longer names; asked for one, it says anything.
bool IsNameTooLong(const fs::path& path) {
  constexpr std::size_t kLongestName = 255;
  return path.filename().native().size() > kLongestName;
}

bool IsInUse(const fs::path& path) {
  const HANDLE handle =
      CreateFileW(path.c_str(), DELETE, kShareAll, nullptr, OPEN_EXISTING, 0, nullptr);
  if (handle == INVALID_HANDLE_VALUE) {
    return GetLastError() == ERROR_SHARING_VIOLATION;
  }
  CloseHandle(handle);
  return false;
}

}  // namespace

FileHandle::~FileHandle() {
  if (IsOpen()) {
    Close();
  }
}

std::error_code FileHandle::CreateNew(const fs::path& path) {
  if (IsNameTooLong(path)) {
    return std::make_error_code(std::errc::filename_too_long);
  }
  handle_ = CreateFileW(path.c_str(), GENERIC_READ | GENERIC_WRITE, kShareAll, nullptr, CREATE_NEW,
                        FILE_ATTRIBUTE_NORMAL, nullptr);
  return ResultOf(IsOpen());
}

std::error_code FileHandle::Open(const fs::path& path, Access access) {
  const DWORD rights = access == Access::kRead ? GENERIC_READ : GENERIC_READ | GENERIC_WRITE;
  handle_ = CreateFileW(path.c_str(), rights, kShareAll, nullptr, OPEN_EXISTING, 0, nullptr);
  return ResultOf(IsOpen());
}

bool FileHandle::IsRegularFile() const { return GetFileType(handle_) == FILE_TYPE_DISK; }

std::error_code FileHandle::GetSize(std::uint64_t& size) const {
  LARGE_INTEGER length{};
  const std::error_code error = ResultOf(GetFileSizeEx(handle_, &length));
  size = static_cast<std::uint64_t>(length.QuadPart);
  return error;
}

bool FileHandle::IsFileAt(const fs::path& path) const {
  FileHandle there;
  BY_HANDLE_FILE_INFORMATION own{};
  BY_HANDLE_FILE_INFORMATION other{};
  return !there.Open(path, Access::kRead) && GetFileInformationByHandle(handle_, &own) != 0 &&
         GetFileInformationByHandle(there.handle_, &other) != 0 &&
         own.dwVolumeSerialNumber == other.dwVolumeSerialNumber &&
         own.nFileIndexHigh == other.nFileIndexHigh && own.nFileIndexLow == other.nFileIndexLow;
}

std::error_code FileHandle::TryLock(LockKind kind) {
  OVERLAPPED place{};
  place.OffsetHigh = kLockedByteHigh;
  const DWORD exclusive = kind == LockKind::kExclusive ? LOCKFILE_EXCLUSIVE_LOCK : 0;
  return ResultOf(LockFileEx(handle_, LOCKFILE_FAIL_IMMEDIATELY | exclusive, 0, 1, 0, &place));
}

std::error_code FileHandle::ReadAt(std::uint64_t position, std::string& bytes) {
  if (const std::error_code error = Seek(handle_, position)) {
    return error;
  }
  std::size_t done = 0;
  while (done < bytes.size()) {
    DWORD got = 0;
    const auto length = static_cast<DWORD>(std::min(bytes.size() - done, kMostAtOnce));
    if (ReadFile(handle_, bytes.data() + done, length, &got, nullptr) == 0) {
      return LastError();
    }
    if (got == 0) {
      break;
    }
    done += got;
  }
  bytes.resize(done);
  return {};
}

std::error_code FileHandle::Write(std::string_view bytes) {
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

std::error_code FileHandle::WriteAt(std::uint64_t position, std::string_view bytes) {
  const std::error_code error = Seek(handle_, position);
  return error ? error : Write(bytes);
}

std::error_code FileHandle::Resize(std::uint64_t length) {
  const std::error_code error = Seek(handle_, length);
  return error ? error : ResultOf(SetEndOfFile(handle_));
}

// A new file may be written and read, which is all that there is to say here.
std::error_code FileHandle::SetPermissions(fs::perms /*permissions*/) { return {}; }

void FileHandle::BeginFlush() {}

std::error_code FileHandle::Flush() { return ResultOf(FlushFileBuffers(handle_)); }

std::error_code FileHandle::Close() { return ResultOf(CloseHandle(std::exchange(handle_, kNone))); }

// Replacing keeps who may read the file, its attributes and the date of its creation.
std::error_code Rename(const fs::path& from, const fs::path& to) {
  constexpr DWORD kReplacing = MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH;
  if (MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_WRITE_THROUGH) != 0) {
    return {};
  }
  // A replacement that fails can leave files behind.
  if (IsInUse(to)) {
    return std::make_error_code(std::errc::device_or_resource_busy);
  }
  if (ReplaceFileW(to.c_str(), from.c_str(), nullptr, REPLACEFILE_IGNORE_MERGE_ERRORS, nullptr,
                   nullptr) != 0) {
    return {};
  }
  // It can fail when the old file is gone already, or because the file system knows no replacing.
  const std::error_code error = LastError();
  return MoveFileExW(from.c_str(), to.c_str(), kReplacing) != 0 ? std::error_code() : error;
}

void FlushFolder(const fs::path& /*folder*/) {}

}  // namespace vendlingua

#endif
