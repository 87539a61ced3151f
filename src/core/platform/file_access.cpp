#include "core/platform/file_access.h"

#include "core/platform/folder_of.h"

#ifdef _WIN32
#include <windows.h>
#else
#include <fcntl.h>
#include <unistd.h>
#endif

namespace vendlingua {
namespace {

namespace fs = std::filesystem;

enum class Right { kWriteFile, kAddFiles };

#ifdef _WIN32

bool Has(Right right, const fs::path& path) {
  constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
  const DWORD access = right == Right::kWriteFile ? FILE_WRITE_DATA : FILE_ADD_FILE;
  // The flag lets folders be opened.
  const HANDLE handle = CreateFileW(path.c_str(), access, kShareAll, nullptr, OPEN_EXISTING,
                                    FILE_FLAG_BACKUP_SEMANTICS, nullptr);
  if (handle == INVALID_HANDLE_VALUE) {
    // Another program keeps it for itself, which is another matter.
    return GetLastError() == ERROR_SHARING_VIOLATION;
  }
  CloseHandle(handle);
  return true;
}

#else

bool Has(Right right, const fs::path& path) {
  const int mode = right == Right::kWriteFile ? W_OK : W_OK | X_OK;
  return faccessat(AT_FDCWD, path.c_str(), mode, AT_EACCESS) == 0;
}

#endif

}  // namespace

bool MayWrite(const fs::path& file) { return Has(Right::kWriteFile, file); }

bool MayReplace(const fs::path& file) {
  return MayWrite(file) && Has(Right::kAddFiles, FolderOf(file));
}

}  // namespace vendlingua
