#ifndef VENDLINGUA_CORE_PLATFORM_FILE_ACCESS_H_
#define VENDLINGUA_CORE_PLATFORM_FILE_ACCESS_H_

#include <filesystem>

namespace vendlingua {

/// Whether this user may write `file`, which is there. Opens nothing.
bool MayWrite(const std::filesystem::path& file);

/// Whether this user may replace `file`, which is there: the file may be written and its folder
/// takes new files. Tries nothing that could be seen.
bool MayReplace(const std::filesystem::path& file);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_PLATFORM_FILE_ACCESS_H_
