#ifndef VENDLINGUA_CORE_FORMATS_JOURNAL_FILES_H_
#define VENDLINGUA_CORE_FORMATS_JOURNAL_FILES_H_

#include <filesystem>
#include <optional>
#include <system_error>
#include <vector>

#include "core/formats/edit_journal.h"
#include "core/platform/file_handle.h"

namespace vendlingua {

/// The journals in a folder, in order of their names; none where it cannot be read.
std::vector<std::filesystem::path> JournalsIn(const std::filesystem::path& folder);

/// A name that no journal in `folder` has; the folder is made where it is missing.
std::filesystem::path NewJournalPath(const std::filesystem::path& folder);

/// Begins a journal at `path`, locked as long as `file` is open.
std::error_code CreateJournal(FileHandle& file, const std::filesystem::path& path,
                              const JournalSubject& subject);

/// The journal at `path`, unless a running program writes it. It stays locked as long as `file` is
/// open.
std::optional<EditJournal> TakeJournal(FileHandle& file, const std::filesystem::path& path);

/// Closes `file` and removes the journal.
void RemoveJournal(FileHandle& file, const std::filesystem::path& path);

/// Closes `file` and gives the journal another extension, for whoever wants to look at edits that
/// do not fit their file any more. Returns its new path.
std::filesystem::path PutJournalAside(FileHandle& file, const std::filesystem::path& path);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_FORMATS_JOURNAL_FILES_H_
