#include "core/formats/msx_file.h"

#include <algorithm>

#include "core/formats/hex.h"
#include "core/formats/text_lines.h"
#include "core/platform/errors.h"
#include "core/platform/files.h"

namespace vendlingua {
namespace {

constexpr std::size_t kMessageBytes = 16;

// Decodes hexadecimal pairs; nothing when one of them is not hexadecimal.
std::optional<DisplayCodes> DecodePairs(std::string_view digits) {
  DisplayCodes codes;
  for (std::size_t i = 0; i < digits.size(); i += 2) {
    const std::string_view pair = digits.substr(i, 2);
    const auto code = pair.size() == 2 ? ParseHex(pair) : std::nullopt;
    if (!code) {
      return std::nullopt;
    }
    codes.push_back(static_cast<DisplayCode>(*code));
  }
  return codes;
}

bool IsHeaderRecord(std::string_view line) { return line.starts_with("S0"); }

bool NamesManagedFirmware(std::string_view header_record) {
  constexpr std::size_t kModelColumn = 13;
  constexpr std::size_t kModelDigits = 8;
  const auto codes = DecodePairs(Columns(header_record, kModelColumn, kModelDigits));
  const std::string model = codes ? BytesFromCodes(*codes) : std::string();
  return model == "0417" || model == "0405";
}

// The 16 data bytes of a message line; the checksum behind them is not part of the text.
DisplayCodes DecodeMessage(const MessageSet& set, std::string_view line, std::size_t line_number) {
  const auto codes = DecodePairs(Columns(line, kMsxDataColumn, 2 * kMessageBytes));
  if (!codes || codes->size() < kMessageBytes) {
    throw FileError(set.CurrentFileName,
                    "line " + std::to_string(line_number) +
                        " holds no message of 16 hexadecimal pairs from "
                        "column 11 on: \"" +
                        ToUtf8(CodesFromBytes(Columns(line, kMsxDataColumn, 2 * kMessageBytes))) +
                        "\"");
  }
  return *codes;
}

}  // namespace

std::optional<std::vector<std::string>> ReadMsxNames(const MessageSet& set,
                                                     std::string_view content) {
  if (!IsHeaderRecord(content)) {
    return std::nullopt;
  }
  std::vector<std::string> names;
  TextLines lines(content);
  std::size_t name_line = 1 + MsxLinesBefore(set, 1) + static_cast<std::size_t>(set.NameMessage());
  while (const auto line = lines.Next()) {
    if (line->HasLoneCarriageReturn()) {
      throw FileError(set.CurrentFileName, "line " + std::to_string(lines.count()) +
                                               " holds a carriage return that does not end it");
    }
    if (lines.count() == name_line) {
      names.push_back(ToUtf8(Trim(DecodeMessage(set, line->text, lines.count()))));
      if (names.size() == kMsxLanguages) {
        break;
      }
      name_line += set.LangStride;
    }
    if (IsHeaderRecord(line->text) && !NamesManagedFirmware(line->text)) {
      return std::nullopt;
    }
  }
  return names;
}

std::size_t MsxLinesBefore(const MessageSet& set, int language) {
  return 1 + static_cast<std::size_t>(std::max(language - 1, 0)) * set.LangStride;
}

MessageTexts ReadMsxTexts(const MessageSet& set, int language) {
  const std::string content = ReadFile(set.CurrentFileName);
  TextLines lines(content);
  lines.Skip(MsxLinesBefore(set, language));
  MessageTexts texts(set.MessageCount());
  for (std::size_t message = 0; message < set.MessageCount(); ++message) {
    const auto line = lines.Next();
    if (!line) {
      throw FileError(set.CurrentFileName, "the file ends after line " +
                                               std::to_string(lines.count()) + ": message " +
                                               std::to_string(message) + " of language " +
                                               std::to_string(language) + " is missing");
    }
    texts[message] = DisplayText(DecodeMessage(set, line->text, lines.count()));
  }
  return texts;
}

}  // namespace vendlingua
