#include "core/formats/msx_file.h"

#include <fmt/format.h>

#include <algorithm>

#include "core/formats/copy_header.h"
#include "core/formats/hex.h"
#include "core/formats/srecord.h"
#include "core/formats/text_lines.h"
#include "core/platform/errors.h"

namespace vendlingua {
namespace {

bool IsHeaderRecord(std::string_view line) { return line.starts_with("S0"); }

bool NamesManagedFirmware(std::string_view header_record) {
  const std::string_view digits = Columns(header_record, kIdentificationColumn, kModelHexDigits);
  return IsManagedModel(BytesFromCodes(DecodeHexPairs(digits).bytes));
}

// The 16 data bytes of a message line; the checksum behind them is not part of the text.
DisplayCodes DecodeMessage(const MessageSet& set, std::string_view line, std::size_t line_number) {
  const std::string_view digits = LenientRecord(line).DataDigits(kDefaultMessageWidth);
  DisplayCodes codes = DecodeHexPairs(digits).bytes;
  if (codes.size() < kDefaultMessageWidth) {
    throw FileError(set.CurrentFileName, UiTextId::kNoMessageInLine, line_number,
                    kDefaultMessageWidth, LenientRecord::kDataColumn,
                    ToUtf8(CodesFromBytes(digits)));
  }
  return codes;
}

// The lines of a language could not be written over the old ones.
void RequireNoLoneLf(const MessageSet& set, std::string_view content) {
  TextLines lines(content);
  while (const auto line = lines.Next()) {
    if (line->end == LineEnd::kLfAlone) {
      throw FileError(set.CurrentFileName, UiTextId::kAtLine, lines.count(),
                      UiSentence(UiTextId::kLoneLineFeed));
    }
  }
}

}  // namespace

bool IsManagedModel(std::string_view model) { return model == "0417" || model == "0405"; }

bool IsMsxHeader(std::string_view first_line) {
  return IsHeaderRecord(first_line) && NamesManagedFirmware(first_line);
}

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
      throw FileError(set.CurrentFileName, UiTextId::kLoneReturnInLine, lines.count());
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
  RequireNoLoneLf(set, content);
  return names;
}

std::size_t MsxLinesBefore(const MessageSet& set, int language) {
  return 1 + static_cast<std::size_t>(std::max(language - 1, 0)) * set.LangStride;
}

MessageTexts MsxTexts(const MessageSet& set, std::string_view content, int language) {
  TextLines lines(content);
  lines.Skip(MsxLinesBefore(set, language));
  MessageTexts texts(set.MessageCount());
  for (std::size_t message = 0; message < set.MessageCount(); ++message) {
    const auto line = lines.Next();
    if (!line) {
      throw FileError(set.CurrentFileName, UiTextId::kMessageIsMissing, lines.count(), message,
                      language);
    }
    texts[message] = DisplayText(DecodeMessage(set, line->text, lines.count()));
  }
  return texts;
}

}  // namespace vendlingua
