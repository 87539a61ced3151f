#include "core/formats/edit_journal.h"

#include <limits>

#include "core/document/display_code.h"
#include "core/platform/record_bytes.h"

namespace vendlingua {
namespace {

constexpr std::string_view kFirstLineOfJournal = "Vendlingua journal 1\n";
constexpr std::uint32_t kNoLanguage = std::numeric_limits<std::uint32_t>::max();

std::string Framed(std::string_view record) {
  std::string framed;
  AppendNumber(framed, record.size());
  framed += record;
  AppendNumber(framed, Checksum(record));
  return framed;
}

// The next record; nothing when it is not whole.
std::optional<RecordReader> NextRecord(RecordReader& journal) {
  const std::string_view record = journal.Bytes(journal.Number());
  const std::uint32_t checksum = journal.Number();
  const bool is_whole = journal.is_complete() && checksum == Checksum(record);
  return is_whole ? std::optional<RecordReader>(record) : std::nullopt;
}

bool WasReadWhole(const RecordReader& reader) { return reader.is_complete() && reader.at_end(); }

std::optional<JournalSubject> ReadSubject(RecordReader reader) {
  JournalSubject subject;
  const std::string_view file = reader.Bytes(reader.Number());
  subject.file = std::u8string(file.begin(), file.end());
  subject.length = reader.Number();
  subject.checksum = reader.Number();
  const std::uint32_t origin = reader.Number();
  if (origin != kNoLanguage) {
    subject.origin = static_cast<int>(origin);
  }
  subject.destination = static_cast<int>(reader.Number());
  return WasReadWhole(reader) ? std::optional(subject) : std::nullopt;
}

std::optional<JournalEntry> ReadEntry(RecordReader reader) {
  JournalEntry entry;
  entry.message = static_cast<std::uint16_t>(reader.Number());
  entry.last_msg = static_cast<std::uint16_t>(reader.Number());
  entry.display_type = static_cast<std::uint8_t>(reader.Number());
  const std::string_view cells = reader.Bytes(DisplayText::kCells);
  entry.text = DisplayText(CodesFromBytes(cells));
  return WasReadWhole(reader) ? std::optional(entry) : std::nullopt;
}

}  // namespace

std::string ComposeJournalHead(const JournalSubject& subject) {
  const std::u8string file = subject.file.u8string();
  std::string record;
  AppendNumber(record, file.size());
  record.append(file.begin(), file.end());
  AppendNumber(record, subject.length);
  AppendNumber(record, subject.checksum);
  AppendNumber(record, subject.origin ? static_cast<std::uint32_t>(*subject.origin) : kNoLanguage);
  AppendNumber(record, static_cast<std::uint32_t>(subject.destination));
  return std::string(kFirstLineOfJournal) + Framed(record);
}

std::string ComposeJournalEntry(const JournalEntry& entry) {
  std::string record;
  AppendNumber(record, entry.message);
  AppendNumber(record, entry.last_msg);
  AppendNumber(record, entry.display_type);
  record += BytesFromCodes(entry.text.Cells());
  return Framed(record);
}

std::optional<EditJournal> ParseJournal(std::string_view bytes) {
  if (!bytes.starts_with(kFirstLineOfJournal)) {
    return std::nullopt;
  }
  RecordReader reader(bytes.substr(kFirstLineOfJournal.size()));
  const auto head = NextRecord(reader);
  const auto subject = head ? ReadSubject(*head) : std::nullopt;
  if (!subject) {
    return std::nullopt;
  }
  EditJournal journal{*subject, {}};
  while (!reader.at_end()) {
    const auto record = NextRecord(reader);
    const auto entry = record ? ReadEntry(*record) : std::nullopt;
    if (!entry) {
      break;
    }
    journal.entries.push_back(*entry);
  }
  return journal;
}

}  // namespace vendlingua
