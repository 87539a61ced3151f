#include "core/platform/errors.h"

namespace vendlingua {

FileError::FileError(const std::filesystem::path& file, const std::string& reason)
    : Error(PathText(file) + ": " + reason), reason_(reason) {}

std::string PathText(const std::filesystem::path& path) {
  const std::u8string text = path.u8string();
  return {text.begin(), text.end()};
}

}  // namespace vendlingua
