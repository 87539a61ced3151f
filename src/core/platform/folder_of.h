#ifndef VENDLINGUA_CORE_PLATFORM_FOLDER_OF_H_
#define VENDLINGUA_CORE_PLATFORM_FOLDER_OF_H_

#include <filesystem>

namespace vendlingua {

/// The folder that `file` lies in, also for a name alone.
inline std::filesystem::path FolderOf(const std::filesystem::path& file) {
  return file.has_parent_path() ? file.parent_path() : std::filesystem::path(".");
}

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_PLATFORM_FOLDER_OF_H_
