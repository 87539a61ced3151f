#ifndef VENDLINGUA_CORE_PLATFORM_STAGED_FILE_H_
#define VENDLINGUA_CORE_PLATFORM_STAGED_FILE_H_

#include <filesystem>

namespace vendlingua {

/// A new file that takes its name only when it is complete, so that what fails half-way leaves
/// neither a piece of a file nor a damaged old one.
class StagedFile {
 public:
  /// Throws FolderNotReadyError when the folder of `target` is not there.
  explicit StagedFile(std::filesystem::path target);
  StagedFile(const StagedFile&) = delete;
  StagedFile& operator=(const StagedFile&) = delete;
  ~StagedFile();

  /// Where to write until then: beside the target, with its extension.
  const std::filesystem::path& path() const { return staging_; }

  /// Gives the file its name. Throws FileError.
  void Commit();

 private:
  std::filesystem::path target_;
  std::filesystem::path staging_;
  bool committed_ = false;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_PLATFORM_STAGED_FILE_H_
