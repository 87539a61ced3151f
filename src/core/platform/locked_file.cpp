#include "core/platform/locked_file.h"

#include <chrono>
#include <system_error>
#include <thread>
#include <utility>

#include "core/platform/errors.h"

namespace vendlingua {
namespace {

using std::chrono::steady_clock;

// A save takes as long as three flushes.
constexpr std::chrono::seconds kLongestWait(10);
constexpr std::chrono::milliseconds kPause(2);

}  // namespace

// A file that was replaced while this program waited is another one: its lock keeps nobody out.
LockedFile::LockedFile(std::filesystem::path path, Access access) : path_(std::move(path)) {
  const auto kind =
      access == Access::kRead ? FileHandle::LockKind::kShared : FileHandle::LockKind::kExclusive;
  const auto deadline = steady_clock::now() + kLongestWait;
  OpenRegularFile(handle_, path_, access);
  while (!Lock(kind) || !handle_.IsFileAt(path_)) {
    if (steady_clock::now() > deadline) {
      throw FileError(path_, UiTextId::kFileIsInUse);
    }
    handle_.Close();
    std::this_thread::sleep_for(kPause);
    OpenRegularFile(handle_, path_, access);
  }
}

// False while another program has its lock.
bool LockedFile::Lock(FileHandle::LockKind kind) {
  const std::error_code error = handle_.TryLock(kind);
  is_locked_ = !error;
  return error != std::errc::operation_would_block;
}

}  // namespace vendlingua
