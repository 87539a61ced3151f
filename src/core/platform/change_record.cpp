#include "core/platform/change_record.h"

#include <algorithm>

#include "core/platform/record_bytes.h"

namespace vendlingua {
namespace {

constexpr std::string_view kFirstLine = "Vendlingua undo file 1\n";

std::optional<ChangeRecord> ReadRecord(std::string_view bytes) {
  RecordReader reader(bytes);
  ChangeRecord record;
  record.length_before = reader.Number();
  record.length_after = reader.Number();
  record.checksum_before = reader.Number();
  for (std::uint32_t left = reader.Number(); left > 0 && reader.is_complete(); --left) {
    ChangedBytes& change = record.changes.emplace_back();
    change.position = reader.Number();
    const std::uint32_t before = reader.Number();
    const std::uint32_t after = reader.Number();
    change.before = reader.Bytes(before);
    change.after = reader.Bytes(after);
  }
  return reader.is_complete() && reader.at_end() ? std::optional(record) : std::nullopt;
}

// A power cut may leave a file of the right length that lacks any of its bytes: they read as 0.
bool MayBeARecord(std::string_view bytes) {
  const std::string_view line = bytes.substr(0, kFirstLine.size());
  return std::equal(line.begin(), line.end(), kFirstLine.begin(),
                    [](char byte, char ours) { return byte == ours || byte == '\0'; });
}

std::uint64_t EndAfter(const ChangedBytes& change) {
  return change.position + std::uint64_t{change.after.size()};
}

// Whether the record has all bytes by which the file grows: a few bytes make nobody take room for
// more than lies on the disk.
bool HoldsTheGrowth(const ChangeRecord& record) {
  return record.length_before == record.length_after ||
         (record.length_before < record.length_after && !record.changes.empty() &&
          EndAfter(record.changes.back()) == record.length_after);
}

// Whether every change lies in the files that the record tells of.
bool LiesInItsFiles(const ChangeRecord& record) {
  return std::all_of(record.changes.begin(), record.changes.end(), [&](const ChangedBytes& change) {
    return change.position + std::uint64_t{change.before.size()} <= record.length_before &&
           EndAfter(change) <= record.length_after;
  });
}

// Whether `content` has, where the record changes bytes, only such as were there before or after,
// or the 0 of a file that grew already.
bool HoldsNothingElse(const ChangeRecord& record, std::string_view content) {
  for (const ChangedBytes& change : record.changes) {
    for (std::size_t i = 0; i < change.after.size(); ++i) {
      const std::size_t at = change.position + i;
      const char before = i < change.before.size() ? change.before[i] : '\0';
      if (at < content.size() && content[at] != before && content[at] != change.after[i]) {
        return false;
      }
    }
  }
  return true;
}

std::string ContentAfter(const ChangeRecord& record, std::string content) {
  content.resize(record.length_after);
  for (const ChangedBytes& change : record.changes) {
    content.replace(change.position, change.after.size(), change.after);
  }
  return content;
}

// Where the run of differing bytes from `start` on ends: behind it the next bytes are the same.
std::size_t EndOfRun(std::string_view before, std::string_view after, std::size_t start) {
  constexpr std::size_t kLeastGap = 16;
  std::size_t end = start;
  for (std::size_t i = start; i < before.size() && i < end + kLeastGap; ++i) {
    if (before[i] != after[i]) {
      end = i + 1;
    }
  }
  return end;
}

}  // namespace

ChangeRecord RecordOf(std::string_view before, std::string_view after) {
  ChangeRecord record{static_cast<std::uint32_t>(before.size()),
                      static_cast<std::uint32_t>(after.size()),
                      Checksum(before),
                      {}};
  const auto add = [&](std::size_t start, std::size_t end) {
    record.changes.push_back({static_cast<std::uint32_t>(start),
                              std::string(before.substr(start, end - start)),
                              std::string(after.substr(start, end - start))});
  };
  std::size_t done = 0;
  while (done < before.size()) {
    const auto* differs =
        std::mismatch(before.begin() + done, before.end(), after.begin() + done).first;
    const auto start = static_cast<std::size_t>(differs - before.begin());
    if (start == before.size()) {
      break;
    }
    done = EndOfRun(before, after, start);
    add(start, done);
  }
  if (after.size() > before.size()) {
    add(before.size(), after.size());
  }
  return record;
}

std::string ComposeRecord(const ChangeRecord& record) {
  std::string bytes(kFirstLine);
  AppendNumber(bytes, record.length_before);
  AppendNumber(bytes, record.length_after);
  AppendNumber(bytes, record.checksum_before);
  AppendNumber(bytes, record.changes.size());
  for (const ChangedBytes& change : record.changes) {
    AppendNumber(bytes, change.position);
    AppendNumber(bytes, change.before.size());
    AppendNumber(bytes, change.after.size());
    bytes += change.before;
    bytes += change.after;
  }
  AppendNumber(bytes, Checksum(bytes));
  return bytes;
}

ParsedRecord ParseRecord(std::string_view bytes) {
  if (!MayBeARecord(bytes)) {
    return {std::nullopt, false};
  }
  if (!bytes.starts_with(kFirstLine) || bytes.size() < kFirstLine.size() + kNumberBytes) {
    return {std::nullopt, true};
  }
  const std::string_view checked = bytes.substr(0, bytes.size() - kNumberBytes);
  if (RecordReader(bytes.substr(checked.size())).Number() != Checksum(checked)) {
    return {std::nullopt, true};
  }
  std::optional<ChangeRecord> record = ReadRecord(checked.substr(kFirstLine.size()));
  const bool usable = record && HoldsTheGrowth(*record) && LiesInItsFiles(*record);
  return {usable ? std::move(record) : std::nullopt, !usable};
}

ChangeState StateOf(const ChangeRecord& record, std::string_view content) {
  const bool has_a_length_between =
      content.size() >= record.length_before && content.size() <= record.length_after;
  if (!has_a_length_between || !HoldsNothingElse(record, content)) {
    return ChangeState::kUnknown;
  }
  const std::string before = ContentBefore(record, std::string(content));
  if (Checksum(before) != record.checksum_before) {
    return ChangeState::kUnknown;
  }
  if (before == content) {
    return ChangeState::kNotBegun;
  }
  return ContentAfter(record, before) == content ? ChangeState::kComplete
                                                 : ChangeState::kInterrupted;
}

std::string ContentBefore(const ChangeRecord& record, std::string content) {
  content.resize(record.length_before);
  for (const ChangedBytes& change : record.changes) {
    content.replace(change.position, change.before.size(), change.before);
  }
  return content;
}

}  // namespace vendlingua
