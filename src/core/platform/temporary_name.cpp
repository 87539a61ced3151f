#include "core/platform/temporary_name.h"

#include <algorithm>
#include <chrono>
#include <random>
#include <string>
#include <string_view>
#include <system_error>

#include "core/platform/errors.h"
#include "core/platform/file_handle.h"

namespace vendlingua {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kStart = ".vendlingua-";
constexpr std::string_view kEnd = ".tmp";

bool IsTemporaryName(std::string_view name) {
  if (name.size() <= kStart.size() + kEnd.size() || !name.starts_with(kStart) ||
      !name.ends_with(kEnd)) {
    return false;
  }
  name.remove_prefix(kStart.size());
  name.remove_suffix(kEnd.size());
  return std::all_of(name.begin(), name.end(), [](char c) { return c >= '0' && c <= '9'; });
}

bool IsOld(const fs::directory_entry& file) {
  constexpr std::chrono::minutes kLongestPause(1);
  std::error_code error;
  const fs::file_time_type changed = file.last_write_time(error);
  return !error && fs::file_time_type::clock::now() - changed > kLongestPause;
}

// A file system that knows no locks says nothing: the file stays.
bool IsLeft(const fs::path& file) {
  FileHandle handle;
  return !handle.Open(file, FileHandle::Access::kRead) &&
         !handle.TryLock(FileHandle::LockKind::kExclusive);
}

}  // namespace

fs::path TemporaryName() {
  std::random_device random;
  std::string name(kStart);
  name += std::to_string(random());
  name += kEnd;
  return name;
}

void RemoveStaleFiles(const fs::path& folder) {
  std::error_code error;
  fs::directory_iterator entry(folder, error);
  for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
    std::error_code gone;
    if (IsTemporaryName(PathText(entry->path().filename())) && !entry->is_symlink(gone) &&
        entry->is_regular_file(gone) && IsOld(*entry) && IsLeft(entry->path())) {
      fs::remove(entry->path(), gone);
    }
  }
}

}  // namespace vendlingua
