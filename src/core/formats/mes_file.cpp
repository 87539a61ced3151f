#include "core/formats/mes_file.h"

#include <fmt/format.h>

#include <algorithm>

#include "core/document/name_field.h"
#include "core/formats/hex.h"
#include "core/platform/errors.h"

namespace vendlingua {
namespace {

// Users know the positions of the header from 1 on.
std::uint32_t HeaderField(std::string_view content, const MesField& field) {
  const std::string_view digits = content.substr(field.offset, field.digits);
  const auto value = ParseHex(digits);
  if (!value) {
    throw Error(UiTextId::kHeaderFieldNoHex, field.name, field.offset + 1,
                ToUtf8(CodesFromBytes(digits)));
  }
  return *value;
}

void PutField(std::string& header, const MesField& field, std::uint64_t value) {
  header.replace(field.offset, field.digits, HexField(value, field.digits));
}

}  // namespace

MesHeader ParseMesHeader(std::string_view content) {
  if (content.size() < kMesHeaderBytes) {
    throw Error(UiTextId::kHeaderIsCut, content.size(), kMesHeaderBytes);
  }
  MesHeader header{};
  header.lang_count = static_cast<std::uint8_t>(content[kMesLangCountOffset]);
  header.last_col = static_cast<std::uint8_t>(content[kMesLastColOffset]);
  header.flags = static_cast<std::uint8_t>(HeaderField(content, kMesFlags));
  header.header_count = static_cast<std::uint16_t>(HeaderField(content, kMesHeaderCount));
  header.last_msg = static_cast<std::uint16_t>(HeaderField(content, kMesLastMsg));
  header.mem_start = HeaderField(content, kMesMemStart);
  header.mem_length = HeaderField(content, kMesMemLength);
  return header;
}

std::uint8_t MesFlags(const MessageSet& set, std::size_t display_type) {
  const std::size_t stored = display_type < kStoredDisplayTypes ? display_type : 0;
  return static_cast<std::uint8_t>(4 * stored + (set.HeaderBit1 != kFalse ? 2U : 0U) +
                                   (set.HeaderBit0 != kFalse ? 1U : 0U));
}

std::string FormatMesHeader(const MessageSet& set, std::uint8_t flags) {
  std::string header(kMesHeaderBytes, '0');
  header[kMesLangCountOffset] = static_cast<char>(set.LangCount);
  header[kMesLastColOffset] = static_cast<char>(set.LastCol);
  PutField(header, kMesFlags, flags);
  PutField(header, kMesHeaderCount, set.HeaderCount);
  PutField(header, kMesLastMsg, set.LastMsg);
  PutField(header, kMesMemStart, set.MemStart);
  PutField(header, kMesMemLength, set.MemLength);
  return header;
}

void ApplyDimensions(const MesHeader& header, MessageSet& set) {
  set.LastCol = header.last_col;
  set.HeaderBit1 = ToBoolean16((header.flags & 2U) != 0);
  set.HeaderBit0 = ToBoolean16((header.flags & 1U) != 0);
  set.HeaderCount = header.header_count;
  set.LastMsg = header.last_msg;
  set.MemStart = header.mem_start;
  set.MemLength = header.mem_length;
}

void ApplyMesHeader(const MesHeader& header, MessageSet& set) {
  ApplyDimensions(header, set);
  set.LangCount = header.lang_count;
  set.LangStride = MesLangStride(set.MemLength, set.LangCount, set.Width());
  set.BlockLength = MesBlockLength(set.LastCol, set.LangStride);
  if (set.MessageCount() > kLeastTexts && set.LastMsg > set.LangStride) {
    throw Error(UiTextId::kMessagesWithoutRoom, set.MessageCount(), set.LangStride + 1);
  }
}

std::vector<std::string> ReadMesNames(const MessageSet& set, std::string_view content) {
  std::vector<std::string> names;
  while (names.size() < kLanguageEntries) {
    const auto offset =
        static_cast<std::size_t>(MesBlockOffset(set, static_cast<int>(names.size())));
    if (content.size() < offset + NameField::kBytes) {
      break;
    }
    names.push_back(NameField(CodesFromBytes(content.substr(offset, NameField::kBytes))).Caption());
  }
  return names;
}

DisplayCodes MesCells(const MessageSet& set, std::string_view content, int language) {
  const auto offset = static_cast<std::size_t>(MesMessageOffset(set, language, 0));
  const std::size_t size = set.MessageCount() * set.Width();
  const std::string_view bytes = content.substr(std::min(offset, content.size()), size);
  return FitTo(CodesFromBytes(bytes), size);
}

MessageTexts MesTexts(const MessageSet& set, std::string_view content, int language) {
  const DisplayCodes cells = MesCells(set, content, language);
  MessageTexts texts;
  texts.reserve(set.MessageCount());
  for (std::size_t start = 0; start < cells.size(); start += set.Width()) {
    texts.emplace_back(std::span(cells).subspan(start, set.Width()));
  }
  return texts;
}

}  // namespace vendlingua
