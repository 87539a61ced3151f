#include "core/platform/same_file.h"

#include <system_error>

#include "core/platform/folder_of.h"
#include "core/platform/links.h"

namespace vendlingua {
namespace {

namespace fs = std::filesystem;

fs::path Destination(const fs::path& file) {
  std::error_code error;
  const fs::path path = FollowLinks(file);
  const fs::path folder = fs::canonical(FolderOf(path), error);
  return error ? path.lexically_normal() : folder / path.filename();
}

bool IsMade(const fs::path& file) {
  std::error_code not_there;
  return fs::exists(file, not_there);
}

}  // namespace

FilePlace::FilePlace(const fs::path& file)
    : file_(file), destination_(Destination(file)), is_made_(IsMade(file)) {}

bool FilePlace::IsSameAs(const FilePlace& other) const {
  std::error_code not_there;
  return destination_ == other.destination_ ||
         (is_made_ && other.is_made_ && fs::equivalent(file_, other.file_, not_there));
}

}  // namespace vendlingua
