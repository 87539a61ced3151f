#ifndef VENDLINGUA_CORE_FORMATS_EDIT_JOURNAL_H_
#define VENDLINGUA_CORE_FORMATS_EDIT_JOURNAL_H_

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/document/display_text.h"

namespace vendlingua {

/// What a journal is of: the edits of one language of a file as it was read.
struct JournalSubject {
  std::filesystem::path file;
  std::uint32_t length = 0;    ///< of the file, in bytes
  std::uint32_t checksum = 0;  ///< of the whole file, CRC-32
  std::optional<int> origin;   ///< the language that was translated from
  int destination = 0;         ///< 0 for a new one

  bool operator==(const JournalSubject&) const = default;
};

/// A message as it stands after an edit, with what is of the whole set.
struct JournalEntry {
  std::uint16_t message = 0;
  DisplayText text;
  std::uint16_t last_msg = 0;
  std::uint8_t display_type = 0;

  bool operator==(const JournalEntry&) const = default;
};

/// Edits that were not saved; of two entries of one message the later counts.
struct EditJournal {
  JournalSubject subject;
  std::vector<JournalEntry> entries;

  bool operator==(const EditJournal&) const = default;
};

/// A line that says what the file is, and the subject. Subject and entries are records of their
/// own: 32-bit length, bytes, CRC-32 of them.
std::string ComposeJournalHead(const JournalSubject& subject);

/// What every entry appends.
std::string ComposeJournalEntry(const JournalEntry& entry);

/// The journal up to the first entry that is not whole: it was being written. Nothing when the
/// bytes are no journal, or one whose subject is not whole.
std::optional<EditJournal> ParseJournal(std::string_view bytes);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_FORMATS_EDIT_JOURNAL_H_
