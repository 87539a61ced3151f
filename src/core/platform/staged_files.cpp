#include "core/platform/staged_files.h"

#include <set>
#include <system_error>

#include "core/platform/file_errors.h"
#include "core/platform/file_handle.h"
#include "core/platform/links.h"
#include "core/platform/temporary_name.h"

namespace vendlingua {

namespace fs = std::filesystem;

void StagedFiles::Add(const fs::path& target, std::initializer_list<std::string_view> pieces) {
  StagedFile& file = files_.emplace_back(target);
  for (const std::string_view piece : pieces) {
    file.Write(piece);
  }
}

void StagedFiles::Remove(const fs::path& target) {
  RequireReplaceable(target);
  removed_.push_back(target);
}

// The disk writes them side by side, and the folder is flushed once for all.
void StagedFiles::Commit() {
  for (StagedFile& file : files_) {
    file.BeginFlush();
  }
  for (StagedFile& file : files_) {
    file.Finish();
  }
  std::set<fs::path> folders;
  for (StagedFile& file : files_) {
    file.TakeName();
    folders.insert(file.Folder());
  }
  for (const fs::path& path : removed_) {
    std::error_code error;
    fs::remove(FollowLinks(path), error);
    RequireDone(path, UiTextId::kCannotBeWritten, error);
  }
  for (const fs::path& folder : folders) {
    FlushFolder(folder);
    RemoveStaleFiles(folder);
  }
  files_.clear();
  removed_.clear();
}

}  // namespace vendlingua
