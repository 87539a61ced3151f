#include "core/platform/same_file.h"

#include <system_error>

#include "core/platform/links.h"

namespace vendlingua {
namespace {

namespace fs = std::filesystem;

fs::path Destination(const fs::path& file) {
  std::error_code error;
  const fs::path path = FollowLinks(file);
  fs::path canonical = fs::weakly_canonical(fs::absolute(path, error), error);
  return error ? path : canonical;
}

}  // namespace

bool LeadToSameFile(const fs::path& a, const fs::path& b) {
  std::error_code not_there;
  return fs::equivalent(a, b, not_there) || Destination(a) == Destination(b);
}

}  // namespace vendlingua
