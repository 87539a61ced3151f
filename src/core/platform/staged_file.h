#ifndef VENDLINGUA_CORE_PLATFORM_STAGED_FILE_H_
#define VENDLINGUA_CORE_PLATFORM_STAGED_FILE_H_

#include <filesystem>
#include <string_view>

#include "core/platform/file_handle.h"

namespace vendlingua {

/// Throws FileError when `target` is there and is no file that this user may write, or its folder
/// is not there. Opens nothing: opening a pipe or a device can do things by itself.
void RequireReplaceable(const std::filesystem::path& target);

/// A new file that takes its name only when it is complete and on the disk, so that what fails
/// half-way, a power cut included, leaves neither a piece of a file nor a damaged old one. Until
/// then it lies beside its target under a name that nobody can foresee, and goes away with this
/// object. Errors name the target. Where the target is a link, the file that it leads to is
/// replaced; its mode stays.
class StagedFile {
 public:
  /// Creates the file, empty. Throws FileError as RequireReplaceable(), and when it cannot be made.
  explicit StagedFile(std::filesystem::path target);
  StagedFile(const StagedFile&) = delete;
  StagedFile& operator=(const StagedFile&) = delete;
  ~StagedFile();

  /// Adds bytes at the end. Throws FileError.
  void Write(std::string_view bytes);

  /// Leaves the writing to somebody else: closes the file and returns where it lies. Whatever
  /// stands there in the end, and on the disk, is what Commit() takes.
  const std::filesystem::path& HandOver();

  /// Waits until the bytes are on the disk and gives the file its name. Throws FileError.
  void Commit();

  /// The steps of Commit(), for files that belong together: the first lets the system begin to
  /// write. The name is on the disk when the folder is flushed.
  void BeginFlush();
  void Finish();
  void TakeName();

  /// The folder of the file that is made.
  std::filesystem::path Folder() const;

 private:
  void Create();

  std::filesystem::path target_;
  std::filesystem::path place_;  ///< the target, or where it leads as a link
  std::filesystem::path staging_;
  FileHandle file_;
  bool holds_bytes_ = false;  ///< an empty file has nothing that a power cut could take
  bool committed_ = false;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_PLATFORM_STAGED_FILE_H_
