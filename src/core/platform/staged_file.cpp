#include "core/platform/staged_file.h"

#include <random>
#include <string>
#include <system_error>
#include <utility>

#include "core/platform/errors.h"
#include "core/platform/file_errors.h"

namespace vendlingua {
namespace {

namespace fs = std::filesystem;

fs::path FolderOf(const fs::path& file) {
  return file.has_parent_path() ? file.parent_path() : fs::path(".");
}

// Where a link leads, be it to a file that is not there yet.
fs::path FollowLinks(const fs::path& target) {
  constexpr int kMostLinks = 40;
  fs::path path = target;
  std::error_code ignored;
  for (int i = 0; fs::is_symlink(path, ignored); ++i) {
    if (i == kMostLinks) {
      ThrowFileError(target, UiTextId::kCannotBeCreated,
                     std::make_error_code(std::errc::too_many_symbolic_link_levels));
    }
    path = path.parent_path() / fs::read_symlink(path, ignored);
  }
  return path;
}

}  // namespace

StagedFile::StagedFile(fs::path target) : target_(std::move(target)), place_(FollowLinks(target_)) {
  std::error_code not_there;
  if (!fs::is_directory(FolderOf(place_), not_there)) {
    throw FolderNotReadyError(target_, UiTextId::kFolderIsMissing);
  }
  Create();
}

// A name that is taken, by chance or on purpose, is never written to: another one is tried.
void StagedFile::Create() {
  constexpr int kMostTries = 100;
  std::random_device random;
  std::error_code error;
  for (int i = 0; i < kMostTries; ++i) {
    staging_ = place_;
    staging_.replace_filename("~" + std::to_string(random()));
    staging_ += place_.extension();
    error = file_.CreateNew(staging_);
    if (error != std::errc::file_exists) {
      break;
    }
  }
  RequireDone(target_, UiTextId::kCannotBeCreated, error);
}

StagedFile::~StagedFile() {
  if (!committed_) {
    if (file_.IsOpen()) {
      file_.Close();
    }
    std::error_code ignored;
    fs::remove(staging_, ignored);
  }
}

void StagedFile::Write(std::string_view bytes) {
  RequireDone(target_, UiTextId::kCannotBeWritten, file_.Write(bytes));
  holds_bytes_ = holds_bytes_ || !bytes.empty();
}

void StagedFile::SetPermissions(fs::perms permissions) { file_.SetPermissions(permissions); }

const fs::path& StagedFile::HandOver() {
  RequireDone(target_, UiTextId::kCannotBeWritten, file_.Close());
  holds_bytes_ = true;
  return staging_;
}

void StagedFile::Commit() {
  if (!file_.IsOpen()) {
    RequireDone(target_, UiTextId::kCannotBeWritten, file_.Open(staging_));
  }
  if (holds_bytes_) {
    RequireDone(target_, UiTextId::kCannotBeWritten, file_.Flush());
  }
  RequireDone(target_, UiTextId::kCannotBeWritten, file_.Close());
  std::error_code error;
  fs::rename(staging_, place_, error);
  RequireDone(target_, UiTextId::kCannotBeWritten, error);
  committed_ = true;
  if (holds_bytes_) {
    FlushFolder(FolderOf(place_));
  }
}

}  // namespace vendlingua
