#ifndef VENDLINGUA_CORE_PLATFORM_FILE_ERRORS_H_
#define VENDLINGUA_CORE_PLATFORM_FILE_ERRORS_H_

#include <filesystem>
#include <string>
#include <system_error>

namespace vendlingua {

/// Throws the FileError of a call to the system that failed: FolderNotReadyError when the folder of
/// `file` or its device is not there. `action` says what could not be done.
[[noreturn]] void ThrowFileError(const std::filesystem::path& file, const std::string& action,
                                 std::error_code error);

/// Nothing when `error` is none; otherwise as ThrowFileError.
void RequireDone(const std::filesystem::path& file, const std::string& action,
                 std::error_code error);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_PLATFORM_FILE_ERRORS_H_
