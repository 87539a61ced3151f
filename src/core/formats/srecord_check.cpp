#include "core/formats/srecord_check.h"

#include <fmt/format.h>

#include <algorithm>
#include <boost/icl/interval_set.hpp>
#include <boost/icl/right_open_interval.hpp>
#include <cstdint>
#include <functional>

#include "core/formats/copy_header.h"
#include "core/formats/hex.h"
#include "core/formats/msx_file.h"
#include "core/formats/srecord.h"
#include "core/formats/text_lines.h"
#include "core/texts/english_texts.h"

namespace vendlingua {
namespace {

// A file of which so much is wrong is no file of S-records.
constexpr std::size_t kMostFindings = 10000;

using CoveredRange = boost::icl::right_open_interval<std::uint64_t>;
using CoveredRanges = boost::icl::interval_set<std::uint64_t, std::less, CoveredRange>;

std::string WrongChecksum(const SRecord& record) {
  return fmt::format("the checksum is {:02X} instead of {:02X}", record.checksum,
                     SRecordChecksum(record.sum));
}

class SRecordChecker {
 public:
  Findings Check(std::string_view content) {
    TextLines lines(content);
    while (findings_.size() < kMostFindings) {
      const auto line = lines.Next();
      if (!line) {
        break;
      }
      line_number_ = lines.count();
      CheckPlace(*line, lines.AtEnd());
    }
    if (!lines.AtEnd()) {
      findings_.push_back(fmt::format("line {} and what follows was not checked: too much is wrong",
                                      line_number_ + 1));
    } else if (!has_data_) {
      findings_.emplace_back("the file holds no data record");
    }
    return findings_;
  }

 private:
  void Report(std::string_view what) {
    findings_.push_back(fmt::format("line {}: {}", line_number_, what));
  }

  // What is special about the first line, the last one and the line ends of some files.
  void CheckPlace(const TextLine& line, bool is_last) {
    if (line_number_ == 1) {
      is_copy_ = IsCopyHeader(line.text);
      needs_crlf_ = IsMsxHeader(line.text);
    }
    if (needs_crlf_ && line.end == LineEnd::kLfAlone) {
      Report(EnglishTexts()[UiTextId::kLoneLineFeed]);
      needs_crlf_ = false;
    }
    const bool is_known =
        is_copy_ && (line_number_ == 1 || (is_last && line.text == kLastCopyLine));
    if (!is_known) {
      CheckRecord(line.text);
    }
  }

  void CheckRecord(std::string_view line) {
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
      Report(WrongChecksum(record_));
    }
    if (record_.type >= '1' && record_.type <= '3') {
      CheckAddress();
    }
  }

  void CheckAddress() {
    const CoveredRange range(record_.address, std::uint64_t{record_.address} + record_.size);
    if (has_data_ && range.lower() > next_address_) {
      Report(fmt::format("gap: address {} follows {}", AddressText(range.lower()),
                         AddressText(next_address_ - 1)));
    } else if (has_data_ && range.lower() < next_address_) {
      Report(fmt::format("address {} goes back behind {}", AddressText(range.lower()),
                         AddressText(next_address_ - 1)));
    }
    if (boost::icl::intersects(covered_, range)) {
      Report(fmt::format("overlap: bytes from address {} on were given before",
                         AddressText(range.lower())));
    }
    covered_ += range;
    has_data_ = true;
    next_address_ = range.upper();
  }

  Findings findings_;
  SRecord record_;
  CoveredRanges covered_;
  std::size_t line_number_ = 0;
  std::uint64_t next_address_ = 0;
  bool has_data_ = false;
  bool is_copy_ = false;
  bool needs_crlf_ = false;  // no line that ends otherwise was reported yet
};

}  // namespace

Findings CheckSRecords(std::string_view content) { return SRecordChecker().Check(content); }

std::string DamageOf(std::string_view line) {
  if (line.empty() || line == kLastCopyLine) {
    return {};
  }
  SRecord record;
  try {
    ParseSRecord(line, record);
  } catch (const SRecordSyntaxError& error) {
    return error.what();
  }
  return record.ChecksumIsRight() ? std::string() : WrongChecksum(record);
}

}  // namespace vendlingua
