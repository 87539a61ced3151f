#include "core/formats/mes_patch.h"

#include <fmt/format.h>

#include <utility>

#include "core/formats/hex.h"
#include "core/formats/mes_file.h"
#include "core/formats/mes_layout.h"
#include "core/platform/errors.h"

namespace vendlingua {
namespace {

// A message as wide as the set: cells behind those that a text has are blank.
void AppendMessage(std::string& out, const DisplayText& text, std::size_t width) {
  const auto cells = text.First(width);
  out.append(cells.begin(), cells.end());
  out.append(width - cells.size(), static_cast<char>(kBlank));
}

std::string OriginMessages(const MessageSet& set) {
  std::string messages;
  for (std::size_t i = 0; i <= set.LangStride; ++i) {
    AppendMessage(messages, i < set.OriginText.size() ? set.OriginText[i] : DisplayText(),
                  set.Width());
  }
  return messages;
}

// A block that does not hold `LastMsg` + 1 messages would be written over the next language.
void RefuseToOverwriteNextBlock(const MessageSet& set, int language, std::uintmax_t file_size) {
  const std::int64_t end = MesMessageOffset(set, language, set.MessageCount());
  const std::int64_t next = MesBlockOffset(set, language + 1);
  if (end > next && file_size > static_cast<std::uintmax_t>(next)) {
    throw FileError(set.CurrentFileName, UiTextId::kBlockIsTooSmall,
                    static_cast<int>(set.BlockLength), set.MessageCount());
  }
}

FilePatch HeaderPatch(const MesField& field, std::uint64_t value) {
  return {static_cast<std::int64_t>(field.offset), HexField(value, field.digits)};
}

}  // namespace

std::vector<FilePatch> BuildMesPatch(const MessageSet& set, int language, const NameField& name,
                                     std::uint8_t flags, std::uintmax_t file_size) {
  RefuseToOverwriteNextBlock(set, language, file_size);
  std::string block = name.Bytes();
  for (std::size_t i = 0; i < set.MessageCount(); ++i) {
    AppendMessage(block, set.DestText[i], set.Width());
  }
  return {HeaderPatch(kMesFlags, flags),
          HeaderPatch(kMesLastMsg, set.LastMsg),
          {MesBlockOffset(set, language), std::move(block)}};
}

FilePatch BuildFlagsPatch(std::uint8_t flags) { return HeaderPatch(kMesFlags, flags); }

std::string BuildNewMes(const MessageSet& set, const std::optional<NameField>& name,
                        std::uint8_t flags) {
  const std::string messages = OriginMessages(set);
  return FormatMesHeader(set, flags) + NameField::FromCaption(kReferenceName).Bytes() + messages +
         (name ? name->Bytes() : "") + messages;
}

}  // namespace vendlingua
