#ifndef VENDLINGUA_CORE_PLATFORM_FILE_ERRORS_H_
#define VENDLINGUA_CORE_PLATFORM_FILE_ERRORS_H_

#include <filesystem>
#include <system_error>

#include "core/texts/ui_sentence.h"

namespace vendlingua {

/// What the system says of an error.
UiSentence ReasonOf(std::error_code error);

/// Throws the FileError of a call to the system that failed with `error`: FolderNotReadyError when
/// the folder of `file` or its device is not there.
[[noreturn]] void ThrowFileError(const std::filesystem::path& file, const UiSentence& reason,
                                 std::error_code error);

/// The same; `action` says what could not be done and takes the system's reason and `values`.
template <typename... Values>
[[noreturn]] void ThrowFileError(const std::filesystem::path& file, UiTextId action,
                                 std::error_code error, const Values&... values) {
  ThrowFileError(file, UiSentence(action, ReasonOf(error), values...), error);
}

/// Nothing when `error` is none; otherwise as ThrowFileError.
void RequireDone(const std::filesystem::path& file, UiTextId action, std::error_code error);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_PLATFORM_FILE_ERRORS_H_
