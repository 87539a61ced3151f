#include "core/formats/mes_file.h"

#include "core/document/name_field.h"
#include "core/formats/hex.h"
#include "core/platform/errors.h"
#include "core/platform/files.h"

namespace vendlingua {
namespace {

std::uint32_t HeaderField(std::string_view content, const char* name, std::size_t offset,
                          std::size_t digits) {
  const std::string_view field = content.substr(offset, digits);
  const auto value = ParseHex(field);
  if (!value) {
    throw Error("the header field " + std::string(name) + " at position " +
                std::to_string(offset + 1) + " is not hexadecimal: \"" +
                ToUtf8(CodesFromBytes(field)) + "\"");
  }
  return *value;
}

}  // namespace

MesHeader ParseMesHeader(std::string_view content) {
  if (content.size() < kMesHeaderBytes) {
    throw Error("the header has " + std::to_string(content.size()) + " bytes instead of " +
                std::to_string(kMesHeaderBytes));
  }
  MesHeader header{};
  header.lang_count = static_cast<std::uint8_t>(content[0]);
  header.last_col = static_cast<std::uint8_t>(content[1]);
  header.flags = static_cast<std::uint8_t>(HeaderField(content, "flags", 2, 2));
  header.header_count = static_cast<std::uint16_t>(HeaderField(content, "HeaderCount", 4, 4));
  header.last_msg = static_cast<std::uint16_t>(HeaderField(content, "LastMsg", 8, 4));
  header.mem_start = HeaderField(content, "MemStart", 12, 8);
  header.mem_length = HeaderField(content, "MemLength", 20, 4);
  return header;
}

std::string FormatMesHeader(const MessageSet& set, std::uint8_t flags) {
  std::string header;
  header.push_back(static_cast<char>(set.LangCount));
  header.push_back(static_cast<char>(set.LastCol));
  header += HexField(flags, 2) + HexField(set.HeaderCount, 4) + HexField(set.LastMsg, 4) +
            HexField(set.MemStart, 8) + HexField(set.MemLength, 4);
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
    throw Error("the header field LastMsg at position 9 gives a language " +
                std::to_string(set.MessageCount()) + " messages, but a block has room for " +
                std::to_string(set.LangStride + 1));
  }
}

std::int64_t MesBlockOffset(const MessageSet& set, int language) {
  const std::int64_t offset = static_cast<std::int64_t>(kMesHeaderBytes) +
                              language * static_cast<std::int64_t>(set.BlockLength);
  if (offset < 0) {
    throw Error("the block length wraps to " +
                std::to_string(static_cast<std::int64_t>(set.BlockLength)) +
                " bytes, which puts language " + std::to_string(language) +
                " before the start of the file");
  }
  return offset;
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

std::int64_t MesMessageOffset(const MessageSet& set, int language, std::size_t message) {
  return MesBlockOffset(set, language) +
         static_cast<std::int64_t>(NameField::kBytes + message * set.Width());
}

MessageTexts ReadMesTexts(const MessageSet& set, int language) {
  const std::string content = ReadFile(set.CurrentFileName);
  MessageTexts texts(set.MessageCount());
  for (std::size_t message = 0; message < set.MessageCount(); ++message) {
    const auto offset = static_cast<std::size_t>(MesMessageOffset(set, language, message));
    if (offset >= content.size()) {
      continue;
    }
    const std::string_view bytes = std::string_view(content).substr(offset, set.Width());
    if (bytes.size() < set.Width()) {
      throw FileError(set.CurrentFileName, "the file ends inside message " +
                                               std::to_string(message) + " of language " +
                                               std::to_string(language));
    }
    texts[message] = DisplayText(CodesFromBytes(bytes));
  }
  return texts;
}

}  // namespace vendlingua
