#ifndef VENDLINGUA_CORE_PLATFORM_STAGED_FILES_H_
#define VENDLINGUA_CORE_PLATFORM_STAGED_FILES_H_

#include <deque>
#include <filesystem>
#include <initializer_list>
#include <string_view>
#include <vector>

#include "core/platform/staged_file.h"

namespace vendlingua {

/// Files that belong together: none of them takes its name before all are complete and on the disk.
/// Until then nothing is seen of them, and they go away with this object.
class StagedFiles {
 public:
  /// Makes a file of `pieces`, one behind the other. Throws FileError as StagedFile.
  void Add(const std::filesystem::path& target, std::initializer_list<std::string_view> pieces);

  /// Nothing shall lie at `target` in the end: an older file is removed with Commit(). Throws
  /// FileError when a file could not be written there either.
  void Remove(const std::filesystem::path& target);

  /// Gives the files their names and begins anew. Throws FileError; none has its name then, unless
  /// the system breaks off between two of them.
  void Commit();

 private:
  std::deque<StagedFile> files_;
  std::vector<std::filesystem::path> removed_;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_PLATFORM_STAGED_FILES_H_
