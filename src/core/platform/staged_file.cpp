#include "core/platform/staged_file.h"

#include <random>
#include <system_error>
#include <utility>

#include "core/platform/errors.h"

namespace vendlingua {

namespace fs = std::filesystem;

StagedFile::StagedFile(fs::path target) : target_(std::move(target)) {
  std::error_code not_there;
  const fs::path folder = target_.has_parent_path() ? target_.parent_path() : fs::path(".");
  if (!fs::is_directory(folder, not_there)) {
    throw FolderNotReadyError(target_, "cannot be created: its folder is not there");
  }
  std::random_device random;
  do {
    staging_ = target_;
    staging_.replace_filename("~" + std::to_string(random()));
    staging_ += target_.extension();
  } while (fs::exists(staging_));
}

StagedFile::~StagedFile() {
  if (!committed_) {
    std::error_code ignored;
    fs::remove(staging_, ignored);
  }
}

void StagedFile::Commit() {
  std::error_code error;
  fs::rename(staging_, target_, error);
  if (error) {
    throw FileError(target_, "cannot be written: " + error.message());
  }
  committed_ = true;
}

}  // namespace vendlingua
