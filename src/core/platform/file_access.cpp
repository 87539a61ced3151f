#include "core/platform/file_access.h"

#ifdef _WIN32
#include <windows.h>
#else
#include <fcntl.h>
#include <unistd.h>
#endif

namespace vendlingua {
namespace {

namespace fs = std::filesystem;

#ifdef _WIN32

bool MayOpen(const fs::path& path, DWORD access) {
  constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
  // The flag lets folders be opened.
  const HANDLE handle = CreateFileW(path.c_str(), access, kShareAll, nullptr, OPEN_EXISTING,
                                    FILE_FLAG_BACKUP_SEMANTICS, nullptr);
  if (handle == INVALID_HANDLE_VALUE) {
    return false;
  }
  CloseHandle(handle);
  return true;
}

bool MayWrite(const fs::path& file) { return MayOpen(file, FILE_WRITE_DATA); }
bool MayAddTo(const fs::path& folder) { return MayOpen(folder, FILE_ADD_FILE); }

#else

bool MayAccess(const fs::path& path, int mode) {
  return faccessat(AT_FDCWD, path.c_str(), mode, AT_EACCESS) == 0;
}

bool MayWrite(const fs::path& file) { return MayAccess(file, W_OK); }
bool MayAddTo(const fs::path& folder) { return MayAccess(folder, W_OK | X_OK); }

#endif

}  // namespace

bool MayReplace(const fs::path& file) {
  return MayWrite(file) && MayAddTo(file.has_parent_path() ? file.parent_path() : ".");
}

}  // namespace vendlingua
