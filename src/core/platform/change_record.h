#ifndef VENDLINGUA_CORE_PLATFORM_CHANGE_RECORD_H_
#define VENDLINGUA_CORE_PLATFORM_CHANGE_RECORD_H_

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vendlingua {

/// A run of bytes that a change replaces. What lies behind the end of the file before the change is
/// not in `before`, which is then shorter.
struct ChangedBytes {
  std::uint32_t position;
  std::string before;
  std::string after;

  bool operator==(const ChangedBytes&) const = default;
};

/// A change of a file in place: all that is needed to take it back, or to tell how far it came.
struct ChangeRecord {
  std::uint32_t length_before = 0;
  std::uint32_t length_after = 0;
  std::uint32_t checksum_before = 0;  ///< CRC-32 of the whole file
  std::vector<ChangedBytes> changes;  ///< ascending, apart from each other

  bool operator==(const ChangeRecord&) const = default;
};

/// The change from `before` to `after`, which is not shorter.
ChangeRecord RecordOf(std::string_view before, std::string_view after);

/// The record as the bytes of an undo file: a line that says what it is; lengths, checksum and the
/// number of changes as 32-bit numbers, the low byte first; every change as position, two lengths
/// and the bytes before and after; a CRC-32 of all that.
std::string ComposeRecord(const ChangeRecord& record);

/// What the bytes of an undo file are.
struct ParsedRecord {
  std::optional<ChangeRecord> record;
  /// Without a record: it was being written, so that nothing was changed yet. Otherwise it is
  /// somebody else's file.
  bool is_unfinished = false;
};
ParsedRecord ParseRecord(std::string_view bytes);

/// How far a change came in a file.
enum class ChangeState {
  kNotBegun,
  kInterrupted,
  kComplete,
  kUnknown,  ///< the file was changed since by somebody else
};
ChangeState StateOf(const ChangeRecord& record, std::string_view content);

/// `content` with the bytes and the length before the change.
std::string ContentBefore(const ChangeRecord& record, std::string content);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_PLATFORM_CHANGE_RECORD_H_
