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

void ThrowFileError(const std::filesystem::path& file, const std::string& action,
                    std::error_code error) {
  const std::string reason = action + ": " + (error ? error.message() : "unknown error");
  if (FolderIsMissing(file) || error == std::errc::no_such_device ||
      error == std::errc::no_such_device_or_address) {
    throw FolderNotReadyError(file, reason);
  }
  throw FileError(file, reason);
}

void RequireDone(const std::filesystem::path& file, const std::string& action,
                 std::error_code error) {
  if (error) {
    ThrowFileError(file, action, error);
  }
}

}  // namespace vendlingua
