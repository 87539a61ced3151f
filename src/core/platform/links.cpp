#include "core/platform/links.h"

#include <system_error>

namespace vendlingua {

std::filesystem::path FollowLinks(std::filesystem::path path) {
  constexpr int kMostLinks = 40;  // more are a circle
  std::error_code error;
  for (int links = 0; links < kMostLinks && std::filesystem::is_symlink(path, error); ++links) {
    path = path.parent_path() / std::filesystem::read_symlink(path, error);
  }
  return path;
}

}  // namespace vendlingua
