#ifndef VENDLINGUA_CORE_PLATFORM_TEMPORARY_NAME_H_
#define VENDLINGUA_CORE_PLATFORM_TEMPORARY_NAME_H_

#include <filesystem>

namespace vendlingua {

/// A name for a file that is being made, which nobody can foresee. File dialogs do not show it.
std::filesystem::path TemporaryName();

/// Removes the files of such names in `folder` that were left there by a program that was ended.
/// One that is in use is locked, or was changed within the last minute.
void RemoveStaleFiles(const std::filesystem::path& folder);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_PLATFORM_TEMPORARY_NAME_H_
