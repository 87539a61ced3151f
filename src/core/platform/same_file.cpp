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

FilePlace::FilePlace(const fs::path& file) : file_(file), destination_(Destination(file)) {}

bool FilePlace::IsSameAs(const FilePlace& other) const {
  std::error_code not_there;
  return destination_ == other.destination_ || fs::equivalent(file_, other.file_, not_there);
}

}  // namespace vendlingua
