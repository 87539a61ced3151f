#ifndef VENDLINGUA_CORE_OPERATIONS_UNSAVED_EDITS_H_
#define VENDLINGUA_CORE_OPERATIONS_UNSAVED_EDITS_H_

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "core/document/workspace.h"
#include "core/formats/edit_journal.h"
#include "core/operations/languages.h"
#include "core/platform/dialogs.h"
#include "core/platform/file_handle.h"

namespace vendlingua {

/// Keeps the edits of the destination, as long as they are not saved, in a journal of their own, so
/// that they outlive a crash, and offers them when the same file is opened again. The journals lie
/// in `Folders::journals`; a program that has none keeps nothing. A journal that a running program
/// writes is locked.
class UnsavedEdits {
 public:
  UnsavedEdits(Workspace& workspace, Dialogs& dialogs, Languages& languages);

  /// Brings the journal up to date, on the disk too: what was edited since is appended, and when
  /// nothing is left to save it is removed. Throws FileError when that cannot be done.
  void Keep();

  /// Whether Keep() would have something to do.
  bool IsBehind() const;

  /// When a file was opened: asks whether edits of it that were never saved shall be taken over.
  /// Yes makes them edits of now, No removes them. Edits of another state of the file are told of
  /// and put aside. Throws Error when the languages cannot be opened; the journal then stays.
  void Offer();

 private:
  /// What the journal that is being written is of, and how far it is.
  struct Kept {
    JournalSubject subject;
    std::string file_content;
    MessageTexts texts;
    std::size_t last_msg = 0;
    std::size_t display_type = 0;
  };

  bool HasUnsavedEdits() const;
  bool Continues() const;
  JournalSubject SubjectOf() const;
  MessageTexts BaseTexts() const;
  std::vector<JournalEntry> EntriesSince(const Kept& kept) const;
  void Begin();
  void Append();
  void WriteEntries(const std::vector<JournalEntry>& entries);
  void Drop();
  void OfferJournal(const EditJournal& journal, FileHandle& file,
                    const std::filesystem::path& path);
  bool IsOfThisFile(const JournalSubject& subject) const;
  bool Fits(const EditJournal& journal) const;
  bool TakeOver(const EditJournal& journal);

  Workspace& workspace_;
  Dialogs& dialogs_;
  Languages& languages_;
  std::optional<FileHandle> file_;
  std::filesystem::path path_;
  Kept kept_;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_OPERATIONS_UNSAVED_EDITS_H_
