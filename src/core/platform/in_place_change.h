#ifndef VENDLINGUA_CORE_PLATFORM_IN_PLACE_CHANGE_H_
#define VENDLINGUA_CORE_PLATFORM_IN_PLACE_CHANGE_H_

#include <filesystem>
#include <string>
#include <string_view>

#include "core/platform/change_record.h"
#include "core/platform/locked_file.h"

// Files that several programs change in place. While a change goes on, an undo file beside the file
// holds what it replaces, so that whatever interrupts the change leaves the old file, the new one,
// or one that can be put back.

namespace vendlingua {

/// The content of a file that programs change in place, read while none of them does. Throws
/// FileError as ReadFile(), and when a change of it was interrupted.
std::string ReadSharedFile(const std::filesystem::path& path);

/// How an interruption is kept from doing harm.
enum class Protection {
  kUndoFile,
  kNone,  ///< the folder takes no new file; only a failure is put back, not a power cut
};

/// Changes the file, which is locked for it and holds `before`, to `after`, which is not shorter.
/// Bytes that do not differ are not written. When it returns, the change is on the disk. Throws
/// FileError when it fails, the file being as it was, and when an earlier change was interrupted.
Protection ChangeInPlace(LockedFile& file, const std::string& before, const std::string& after);

/// Whether an undo file, of whatever content, lies beside `file`.
bool HasUndoFile(const std::filesystem::path& file);

/// What the undo file beside a file tells.
struct PendingChange {
  enum class State {
    kNone,         ///< there is no undo file
    kOver,         ///< nothing is to be done: the change was never begun, or is complete
    kInterrupted,  ///< it can be taken back
    kUnknown,      ///< somebody else changed the file since: it cannot be taken back
    kForeign,      ///< what lies there is no undo file
  };
  State state = State::kNone;
  ChangeRecord record;
  std::filesystem::path undo_file;
};

/// Looks beside `file`, which holds `content`.
PendingChange PendingChangeOf(const std::filesystem::path& file, std::string_view content);

/// Puts the file back to what it held before the interrupted change. Throws FileError.
void TakeBack(LockedFile& file, const PendingChange& change);

/// Removes an undo file of which nothing is needed any more.
void Forget(const PendingChange& change);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_PLATFORM_IN_PLACE_CHANGE_H_
