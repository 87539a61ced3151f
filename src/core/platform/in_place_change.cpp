#include "core/platform/in_place_change.h"

#include <optional>
#include <system_error>
#include <utility>

#include "core/platform/errors.h"
#include "core/platform/file_errors.h"
#include "core/platform/file_handle.h"
#include "core/platform/files.h"

namespace vendlingua {
namespace {

namespace fs = std::filesystem;
using State = PendingChange::State;

// An undo file holds the changed bytes twice.
constexpr std::uint64_t kUndoFileLimit = 3 * kMessageFileLimit;

// Beside the file itself, whatever link leads to it.
fs::path UndoFileOf(const fs::path& file) {
  std::error_code error;
  const fs::path canonical = fs::canonical(file, error);
  fs::path undo = error ? file : canonical;
  const fs::path name = undo.filename();
  undo.replace_filename("~");
  undo += name;
  undo += ".undo";
  return undo;
}

State StateOf(ChangeState state) {
  switch (state) {
    case ChangeState::kNotBegun:
    case ChangeState::kComplete:
      return State::kOver;
    case ChangeState::kInterrupted:
      return State::kInterrupted;
    case ChangeState::kUnknown:
      break;
  }
  return State::kUnknown;
}

void RefuseInterrupted(const fs::path& file, const PendingChange& pending) {
  if (pending.state == State::kInterrupted) {
    throw FileError(file, UiTextId::kSaveWasInterrupted);
  }
}

// Makes room for the undo file of a new change.
void ClearTheWay(const fs::path& file, const PendingChange& pending) {
  RefuseInterrupted(file, pending);
  if (pending.state == State::kForeign) {
    throw FileError(pending.undo_file, UiTextId::kIsInTheWay);
  }
  Forget(pending);
}

// Some folders take no new file, and the longest names have no room for that of an undo file.
bool TakesNoUndoFile(std::error_code error) {
  return error == std::errc::permission_denied || error == std::errc::operation_not_permitted ||
         error == std::errc::read_only_file_system || error == std::errc::filename_too_long;
}

std::error_code WriteNewFile(FileHandle& file, std::string_view bytes) {
  std::error_code error = file.Write(bytes);
  if (!error) {
    error = file.Flush();
  }
  const std::error_code closing = file.Close();
  return error ? error : closing;
}

Protection WriteUndoFile(const fs::path& undo_file, const fs::path& file,
                         const ChangeRecord& record) {
  FileHandle handle;
  const std::error_code creating = handle.CreateNew(undo_file);
  if (TakesNoUndoFile(creating)) {
    return Protection::kNone;
  }
  RequireDone(file, UiTextId::kCannotBeWritten, creating);
  std::error_code error;
  // Whoever may change the file may put it back.
  handle.SetPermissions(fs::status(file, error).permissions());
  error = WriteNewFile(handle, ComposeRecord(record));
  if (error) {
    std::error_code ignored;
    fs::remove(undo_file, ignored);
    ThrowFileError(file, UiTextId::kCannotBeWritten, error);
  }
  FlushFolder(undo_file.parent_path());
  return Protection::kUndoFile;
}

void WriteChanges(LockedFile& file, const ChangeRecord& record) {
  for (const ChangedBytes& change : record.changes) {
    if (const auto error = file.handle().WriteAt(change.position, change.after)) {
      ThrowFileError(file.path(), UiTextId::kCannotBeWrittenAt, error,
                     std::uint64_t{change.position} + 1);
    }
  }
  RequireDone(file.path(), UiTextId::kCannotBeWritten, file.handle().Flush());
}

// Nothing when the file is as it was before the change. Of bytes that could not be written for the
// change the old ones cannot be written either, and need not.
std::error_code PutBack(LockedFile& file, const ChangeRecord& record) {
  FileHandle& handle = file.handle();
  std::error_code first_error;
  const auto note = [&first_error](std::error_code error) {
    first_error = first_error ? first_error : error;
  };
  for (const ChangedBytes& change : record.changes) {
    note(handle.WriteAt(change.position, change.before));
  }
  note(handle.Resize(record.length_before));
  std::string content(std::size_t{record.length_after} + 1, '\0');
  const std::error_code reading = handle.ReadAt(0, content);
  if (!reading && StateOf(record, content) == ChangeState::kNotBegun) {
    return handle.Flush();
  }
  note(reading);
  return first_error ? first_error : std::make_error_code(std::errc::io_error);
}

}  // namespace

std::string ReadSharedFile(const fs::path& path) {
  LockedFile file(path, LockedFile::Access::kRead);
  std::string content = file.Read();
  RefuseInterrupted(path, PendingChangeOf(path, content));
  return content;
}

Protection ChangeInPlace(LockedFile& file, const std::string& before, const std::string& after) {
  ClearTheWay(file.path(), PendingChangeOf(file.path(), before));
  const ChangeRecord record = RecordOf(before, after);
  if (record.changes.empty()) {
    return Protection::kUndoFile;
  }
  const fs::path undo_file = UndoFileOf(file.path());
  const Protection protection = WriteUndoFile(undo_file, file.path(), record);
  std::error_code ignored;
  try {
    WriteChanges(file, record);
  } catch (const FileError& error) {
    if (const std::error_code remains = PutBack(file, record)) {
      throw FileError(file.path(), UiTextId::kCouldNotPutBack, error.sentence(), ReasonOf(remains));
    }
    fs::remove(undo_file, ignored);
    throw;
  }
  fs::remove(undo_file, ignored);
  return protection;
}

bool HasUndoFile(const fs::path& file) {
  std::error_code not_there;
  return fs::exists(fs::symlink_status(UndoFileOf(file), not_there));
}

PendingChange PendingChangeOf(const fs::path& file, std::string_view content) {
  if (!HasUndoFile(file)) {
    return {};
  }
  PendingChange pending{State::kForeign, {}, UndoFileOf(file)};
  try {
    const ParsedRecord parsed = ParseRecord(ReadFile(pending.undo_file, kUndoFileLimit));
    if (parsed.record) {
      pending.state = StateOf(StateOf(*parsed.record, content));
      pending.record = *parsed.record;
    } else if (parsed.is_unfinished) {
      pending.state = State::kOver;
    }
  } catch (const FileError&) {
    // What cannot be read is not for this program.
  }
  return pending;
}

void TakeBack(LockedFile& file, const PendingChange& change) {
  RequireDone(file.path(), UiTextId::kCannotBeWritten, PutBack(file, change.record));
  Forget(change);
}

void Forget(const PendingChange& change) {
  if (change.state != State::kNone && change.state != State::kForeign) {
    std::error_code ignored;
    std::filesystem::remove(change.undo_file, ignored);
  }
}

}  // namespace vendlingua
