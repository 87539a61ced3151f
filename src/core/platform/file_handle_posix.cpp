#ifndef _WIN32

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <utility>

#include "core/platform/file_handle.h"

namespace vendlingua {
namespace {

namespace fs = std::filesystem;

std::error_code ResultOf(int result) {
  return result == -1 ? std::error_code(errno, std::generic_category()) : std::error_code();
}

// What `call` returns once no signal interrupts it.
template <typename Call>
auto Uninterrupted(const Call& call) {
  auto result = call();
  while (result == -1 && errno == EINTR) {
    result = call();
  }
  return result;
}

// `write_some` takes what is left of the bytes and how many were written before, and returns what
// the system does.
template <typename WriteSome>
std::error_code WriteAll(std::string_view bytes, const WriteSome& write_some) {
  std::size_t done = 0;
  while (done < bytes.size()) {
    const ssize_t written = Uninterrupted([&] { return write_some(bytes.substr(done), done); });
    if (written == -1) {
      return ResultOf(-1);
    }
    if (written == 0) {
      return std::make_error_code(std::errc::io_error);
    }
    done += static_cast<std::size_t>(written);
  }
  return {};
}

}  // namespace

FileHandle::~FileHandle() {
  if (IsOpen()) {
    Close();
  }
}

std::error_code FileHandle::CreateNew(const fs::path& path) {
  constexpr mode_t kModeOfNewFiles = 0666;
  constexpr int kFlags = O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;
  handle_ = Uninterrupted([&] { return open(path.c_str(), kFlags, kModeOfNewFiles); });
  return ResultOf(handle_);
}

std::error_code FileHandle::Open(const fs::path& path, Access access) {
  const int flags = (access == Access::kRead ? O_RDONLY : O_RDWR) | O_NONBLOCK | O_NOCTTY;
  handle_ = Uninterrupted([&] { return open(path.c_str(), flags | O_CLOEXEC); });
  return ResultOf(handle_);
}

bool FileHandle::IsRegularFile() const {
  struct stat state {};
  return fstat(handle_, &state) == 0 && S_ISREG(state.st_mode);
}

std::error_code FileHandle::GetSize(std::uint64_t& size) const {
  struct stat state {};
  const std::error_code error = ResultOf(fstat(handle_, &state));
  size = static_cast<std::uint64_t>(state.st_size);
  return error;
}

bool FileHandle::IsFileAt(const fs::path& path) const {
  struct stat own {};
  struct stat there {};
  return fstat(handle_, &own) == 0 && stat(path.c_str(), &there) == 0 &&
         own.st_dev == there.st_dev && own.st_ino == there.st_ino;
}

std::error_code FileHandle::TryLock(LockKind kind) {
  const int operation = (kind == LockKind::kShared ? LOCK_SH : LOCK_EX) | LOCK_NB;
  return ResultOf(Uninterrupted([&] { return flock(handle_, operation); }));
}

std::error_code FileHandle::ReadAt(std::uint64_t position, std::string& bytes) {
  std::size_t done = 0;
  while (done < bytes.size()) {
    const ssize_t got = Uninterrupted([&] {
      return pread(handle_, bytes.data() + done, bytes.size() - done,
                   static_cast<off_t>(position + done));
    });
    if (got == -1) {
      return ResultOf(-1);
    }
    if (got == 0) {
      break;
    }
    done += static_cast<std::size_t>(got);
  }
  bytes.resize(done);
  return {};
}

std::error_code FileHandle::Write(std::string_view bytes) {
  return WriteAll(bytes, [this](std::string_view rest, std::size_t /*done*/) {
    return write(handle_, rest.data(), rest.size());
  });
}

std::error_code FileHandle::WriteAt(std::uint64_t position, std::string_view bytes) {
  return WriteAll(bytes, [&](std::string_view rest, std::size_t done) {
    return pwrite(handle_, rest.data(), rest.size(), static_cast<off_t>(position + done));
  });
}

std::error_code FileHandle::Resize(std::uint64_t length) {
  return ResultOf(Uninterrupted([&] { return ftruncate(handle_, static_cast<off_t>(length)); }));
}

std::error_code FileHandle::SetPermissions(fs::perms permissions) {
  return ResultOf(fchmod(handle_, static_cast<mode_t>(permissions & fs::perms::mask)));
}

void FileHandle::BeginFlush() {
#ifdef __linux__
  sync_file_range(handle_, 0, 0, SYNC_FILE_RANGE_WRITE);
#endif
}

std::error_code FileHandle::Flush() {
  const std::error_code error = ResultOf(Uninterrupted([this] { return fsync(handle_); }));
  const bool cannot_tell =
      error == std::errc::invalid_argument || error == std::errc::not_supported;
  return cannot_tell ? std::error_code() : error;
}

// After an interruption the file is closed all the same.
std::error_code FileHandle::Close() {
  const std::error_code error = ResultOf(close(std::exchange(handle_, kNone)));
  return error == std::errc::interrupted ? std::error_code() : error;
}

std::error_code Rename(const fs::path& from, const fs::path& to) {
  return ResultOf(std::rename(from.c_str(), to.c_str()));
}

void FlushFolder(const fs::path& folder) {
  const int handle =
      Uninterrupted([&] { return open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC); });
  if (handle != -1) {
    Uninterrupted([handle] { return fsync(handle); });
    close(handle);
  }
}

}  // namespace vendlingua

#endif
