#include "core/formats/msx_lines.h"

#include <fmt/format.h>

#include <numeric>

#include "core/formats/hex.h"
#include "core/formats/msx_file.h"
#include "core/formats/srecord.h"
#include "core/formats/text_lines.h"
#include "core/platform/errors.h"

namespace vendlingua {
namespace {

// "S2", count and address of a line, and the sum of the bytes that it spells.
struct RecordHead {
  std::string_view text;
  std::uint32_t sum;
};

RecordHead ParseHead(const MessageSet& set, std::string_view line, std::size_t line_number) {
  constexpr std::size_t kBytes = 4;  // of count and address
  const std::string_view text = LenientRecord(line).Head();
  const auto digits = Columns(text, LenientRecord::kCountColumn, 2 * kBytes);
  const std::vector<std::uint8_t> bytes = DecodeHexPairs(digits).bytes;
  if (bytes.size() < kBytes) {
    throw FileError(set.CurrentFileName, UiTextId::kNoRecordHead, line_number,
                    LenientRecord::kCountColumn + 2 * bytes.size());
  }
  return {text, std::accumulate(bytes.begin(), bytes.end(), std::uint32_t{0})};
}

void AppendLine(std::string& out, const RecordHead& head, std::span<const DisplayCode> data) {
  out += head.text;
  std::uint32_t sum = head.sum;
  for (const DisplayCode code : data) {
    AppendHexByte(out, code);
    sum += code;
  }
  AppendHexByte(out, SRecordChecksum(sum));
  out += kCrLf;
}

}  // namespace

FilePatch BuildMsxLines(const MessageSet& set, std::string_view content) {
  TextLines lines(content);
  lines.Skip(MsxLinesBefore(set, set.DestLang));
  FilePatch patch{0, ""};
  for (std::size_t i = 0; i < kDefaultMessageCount; ++i) {
    const auto line = lines.Next();
    if (!line) {
      throw FileError(set.CurrentFileName, UiTextId::kLanguageBehindEnd, lines.count());
    }
    if (line->end == LineEnd::kLfAlone) {
      throw FileError(set.CurrentFileName, UiTextId::kNotInCrLf, lines.count());
    }
    if (i == 0) {
      patch.position = static_cast<std::int64_t>(line->offset);
    }
    AppendLine(patch.bytes, ParseHead(set, line->text, lines.count()),
               set.DestText[i].First(set.Width()));
  }
  return patch;
}

}  // namespace vendlingua
