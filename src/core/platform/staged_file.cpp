#include "core/platform/staged_file.h"

#include <system_error>
#include <utility>

#include "core/platform/errors.h"
#include "core/platform/file_access.h"
#include "core/platform/file_errors.h"
#include "core/platform/folder_of.h"
#include "core/platform/links.h"
#include "core/platform/temporary_name.h"

namespace vendlingua {
namespace {

namespace fs = std::filesystem;

// The links lead somewhere, and to a folder that is there.
void RequirePlace(const fs::path& target) {
  std::error_code not_there;
  const fs::path place = FollowLinks(target);
  if (fs::is_symlink(place, not_there)) {
    ThrowFileError(target, UiTextId::kCannotBeCreated,
                   std::make_error_code(std::errc::too_many_symbolic_link_levels));
  }
  if (!fs::is_directory(FolderOf(place), not_there)) {
    throw FolderNotReadyError(target, UiTextId::kFolderIsMissing);
  }
}

}  // namespace

// What may only be read is not to be replaced by a new file either.
void RequireReplaceable(const fs::path& target) {
  std::error_code ignored;
  const fs::file_status status = fs::status(target, ignored);
  if (!fs::exists(status)) {
    RequirePlace(target);
    return;
  }
  if (fs::is_directory(status)) {
    ThrowFileError(target, UiTextId::kCannotBeWritten,
                   std::make_error_code(std::errc::is_a_directory));
  }
  if (!fs::is_regular_file(status)) {
    throw FileError(target, UiTextId::kNoWritableFile);
  }
  if (!MayWrite(target)) {
    ThrowFileError(target, UiTextId::kCannotBeWritten,
                   std::make_error_code(std::errc::permission_denied));
  }
}

StagedFile::StagedFile(fs::path target) : target_(std::move(target)) {
  RequireReplaceable(target_);
  place_ = FollowLinks(target_);
  Create();
}

// A name that is taken, by chance or on purpose, is never written to: another one is tried.
void StagedFile::Create() {
  constexpr int kMostTries = 100;
  std::error_code error;
  for (int i = 0; i < kMostTries; ++i) {
    staging_ = place_;
    staging_.replace_filename(TemporaryName());
    error = file_.CreateNew(staging_);
    if (error != std::errc::file_exists) {
      break;
    }
  }
  RequireDone(target_, UiTextId::kCannotBeCreated, error);
  // The lock says that the file is in use.
  file_.TryLock(FileHandle::LockKind::kExclusive);
  std::error_code not_there;
  const fs::file_status replaced = fs::status(place_, not_there);
  if (fs::exists(replaced)) {
    file_.SetPermissions(replaced.permissions());
  }
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

const fs::path& StagedFile::HandOver() {
  RequireDone(target_, UiTextId::kCannotBeWritten, file_.Close());
  holds_bytes_ = true;
  return staging_;
}

void StagedFile::Commit() {
  Finish();
  TakeName();
  if (holds_bytes_) {
    FlushFolder(Folder());
  }
  RemoveStaleFiles(Folder());
}

void StagedFile::BeginFlush() {
  if (holds_bytes_) {
    file_.BeginFlush();
  }
}

void StagedFile::Finish() {
  if (!file_.IsOpen()) {
    return;
  }
  if (holds_bytes_) {
    RequireDone(target_, UiTextId::kCannotBeWritten, file_.Flush());
  }
  RequireDone(target_, UiTextId::kCannotBeWritten, file_.Close());
}

void StagedFile::TakeName() {
  RequireDone(target_, UiTextId::kCannotBeWritten, Rename(staging_, place_));
  committed_ = true;
}

fs::path StagedFile::Folder() const { return FolderOf(place_); }

}  // namespace vendlingua
