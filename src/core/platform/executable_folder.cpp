#include "core/platform/executable_folder.h"

#ifdef _WIN32
#include <windows.h>

#include <array>
#else
#include <system_error>
#endif

namespace vendlingua {

#ifdef _WIN32

std::filesystem::path ExecutableFile() {
  std::array<wchar_t, 32768> path{};
  const DWORD length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
  return {path.data(), path.data() + length};
}

#else

std::filesystem::path ExecutableFile() {
  std::error_code not_told;
  return std::filesystem::read_symlink("/proc/self/exe", not_told);
}

#endif

std::filesystem::path ExecutableFolder() {
  const std::filesystem::path file = ExecutableFile();
  return file.has_parent_path() ? file.parent_path() : ".";
}

}  // namespace vendlingua
