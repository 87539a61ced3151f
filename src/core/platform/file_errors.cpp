#include "core/platform/file_errors.h"

#include "core/platform/errors.h"

namespace vendlingua {
namespace {

bool FolderIsMissing(const std::filesystem::path& file) {
  std::error_code ignored;
  const std::filesystem::path folder = file.parent_path();
  return !folder.empty() && !std::filesystem::is_directory(folder, ignored);
}

}  // namespace

void ThrowFileError(const std::filesystem::path& file, const UiSentence& reason,
                    std::error_code error) {
  if (FolderIsMissing(file) || error == std::errc::no_such_device ||
      error == std::errc::no_such_device_or_address) {
    throw FolderNotReadyError(file, reason);
  }
  throw FileError(file, reason);
}

UiSentence ReasonOf(std::error_code error) {
  if (error == std::errc::device_or_resource_busy) {
    return UiSentence(UiTextId::kAnotherProgramUsesIt);
  }
  return error ? UiSentence::Verbatim(error.message()) : UiSentence(UiTextId::kUnknownError);
}

void RequireDone(const std::filesystem::path& file, UiTextId action, std::error_code error) {
  if (error) {
    ThrowFileError(file, action, error);
  }
}

}  // namespace vendlingua
