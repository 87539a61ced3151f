#include "core/formats/srecord_check.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <map>

#include "core/formats/copy_header.h"
#include "core/formats/hex.h"
#include "core/formats/srecord.h"
#include "core/formats/text_lines.h"

namespace vendlingua {
namespace {

// The addresses that records have filled so far, as ranges [first, second).
class CoveredAddresses {
 public:
  // False when part of the range was filled before.
  bool Add(std::uint64_t begin, std::uint64_t end) {
    auto next = ranges_.lower_bound(begin);
    bool free = next == ranges_.end() || next->first >= end;
    if (next != ranges_.begin()) {
      const auto previous = std::prev(next);
      if (previous->second >= begin) {
        free = free && previous->second == begin;
        begin = previous->first;
        end = std::max(end, previous->second);
        ranges_.erase(previous);
      }
    }
    while (next != ranges_.end() && next->first <= end) {
      end = std::max(end, next->second);
      next = ranges_.erase(next);
    }
    ranges_.emplace(begin, end);
    return free;
  }

 private:
  std::map<std::uint64_t, std::uint64_t> ranges_;
};

class SRecordChecker {
 public:
  Findings Check(std::string_view content) {
    TextLines lines(content);
    while (const auto line = lines.Next()) {
      line_number_ = lines.count();
      const bool is_last = line->text.data() + line->text.size() + 2 >= content.end();
      if (line_number_ == 1 && IsCopyHeader(line->text)) {
        is_copy_ = true;
      } else if (!(is_copy_ && is_last && line->text == kLastCopyLine)) {
        CheckLine(line->text);
      }
    }
    if (!has_data_) {
      findings_.emplace_back("the file holds no data record");
    }
    return findings_;
  }

 private:
  void Report(const std::string& what) {
    findings_.push_back("line " + std::to_string(line_number_) + ": " + what);
  }

  void CheckLine(std::string_view line) {
    try {
      ParseSRecord(line, record_);
    } catch (const SRecordSyntaxError& error) {
      Report(error.what());
      return;
    }
    if (std::any_of(line.begin(), line.end(), [](char c) { return c >= 'a' && c <= 'f'; })) {
      Report("lower-case hexadecimal digits");
    }
    if (!record_.ChecksumIsRight()) {
      Report("the checksum is " + HexField(record_.checksum, 2) + " instead of " +
             HexField(SRecordChecksum(record_.sum), 2));
    }
    if (record_.type >= '1' && record_.type <= '3') {
      CheckAddress();
    }
  }

  void CheckAddress() {
    const std::uint64_t begin = record_.address;
    const std::uint64_t end = begin + record_.size;
    if (has_data_ && begin > next_address_) {
      Report("gap: address " + Hex(begin) + " follows " + Hex(next_address_ - 1));
    } else if (has_data_ && begin < next_address_) {
      Report("address " + Hex(begin) + " goes back behind " + Hex(next_address_ - 1));
    }
    if (record_.size != 0 && !covered_.Add(begin, end)) {
      Report("overlap: bytes from address " + Hex(begin) + " on were given before");
    }
    has_data_ = true;
    next_address_ = end;
  }

  Findings findings_;
  SRecord record_;
  CoveredAddresses covered_;
  std::size_t line_number_ = 0;
  std::uint64_t next_address_ = 0;
  bool has_data_ = false;
  bool is_copy_ = false;
};

}  // namespace

Findings CheckSRecords(std::string_view content) { return SRecordChecker().Check(content); }

}  // namespace vendlingua
