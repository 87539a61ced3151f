#include "core/formats/msx_lines.h"

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
  std::uint32_t sum = 0;
};

RecordHead ParseHead(const MessageSet& set, std::string_view line, std::size_t line_number) {
  constexpr std::size_t kHeadLength = kMsxDataColumn - 1;
  RecordHead head{line.substr(0, kHeadLength)};
  for (const std::size_t column : {3U, 5U, 7U, 9U}) {
    const std::string_view pair = Columns(line, column, 2);
    const auto byte = pair.size() == 2 ? ParseHex(pair) : std::nullopt;
    if (!byte) {
      throw FileError(set.CurrentFileName, "line " + std::to_string(line_number) + ", column " +
                                               std::to_string(column) +
                                               ": no hexadecimal pair of a record's head");
    }
    head.sum += *byte;
  }
  return head;
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

MsxLines BuildMsxLines(const MessageSet& set, std::string_view content) {
  TextLines lines(content);
  lines.Skip(MsxLinesBefore(set, set.DestLang));
  MsxLines result{0, ""};
  for (std::size_t i = 0; i < kDefaultMessageCount; ++i) {
    const auto line = lines.Next();
    if (!line) {
      throw FileError(set.CurrentFileName,
                      "the file ends after line " + std::to_string(lines.count()) +
                          ": the language lies partly behind its end, nothing was written");
    }
    if (!line->ends_in_crlf) {
      throw FileError(set.CurrentFileName, "line " + std::to_string(lines.count()) +
                                               " does not end in CR LF, nothing was written");
    }
    if (i == 0) {
      result.position = static_cast<std::int64_t>(line->offset) + 1;
    }
    AppendLine(result.content, ParseHead(set, line->text, lines.count()),
               set.DestText[i].First(set.Width()));
  }
  return result;
}

}  // namespace vendlingua
