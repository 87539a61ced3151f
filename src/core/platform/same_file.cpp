#include "core/platform/same_file.h"

#include <system_error>

namespace vendlingua {
namespace {

namespace fs = std::filesystem;

// Where a path leads behind its links. The last of them may lead to a file that is not there yet,
// which the canonical path of the library does not follow.
fs::path Destination(fs::path path) {
  constexpr int kMostLinks = 40;  // more are a circle
  std::error_code error;
  for (int links = 0; links < kMostLinks && fs::is_symlink(path, error); ++links) {
    path = path.parent_path() / fs::read_symlink(path, error);
  }
  fs::path canonical = fs::weakly_canonical(fs::absolute(path, error), error);
  return error ? path : canonical;
}

}  // namespace

bool LeadToSameFile(const fs::path& a, const fs::path& b) {
  std::error_code not_there;
  return fs::equivalent(a, b, not_there) || Destination(a) == Destination(b);
}

}  // namespace vendlingua
