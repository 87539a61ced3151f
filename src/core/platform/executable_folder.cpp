#include "core/platform/executable_folder.h"

#ifdef _WIN32
#include <windows.h>

#include <array>
#else
#include <system_error>
#endif

namespace vendlingua {

#ifdef _WIN32

std::filesystem::path ExecutableFolder() {
  std::array<wchar_t, 32768> path{};
  const DWORD length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
  return std::filesystem::path(path.data(), path.data() + length).parent_path();
}

#else

std::filesystem::path ExecutableFolder() {
  std::error_code not_told;
  return std::filesystem::read_symlink("/proc/self/exe", not_told).parent_path();
}

#endif

}  // namespace vendlingua
