#include "core/formats/mes_layout.h"

#include <fmt/format.h>

#include "core/document/name_field.h"
#include "core/platform/errors.h"

namespace vendlingua {

std::int64_t MesBlockOffset(const MessageSet& set, int language) {
  const auto block_length = static_cast<std::int64_t>(set.BlockLength);
  const std::int64_t offset = static_cast<std::int64_t>(kMesHeaderBytes) + language * block_length;
  if (offset < 0) {
    throw Error(UiTextId::kBlockBeforeStart, block_length, language);
  }
  return offset;
}

std::int64_t MesMessageOffset(const MessageSet& set, int language, std::size_t message) {
  return MesBlockOffset(set, language) +
         static_cast<std::int64_t>(NameField::kBytes + message * set.Width());
}

bool MesBlocksOverlap(const MessageSet& set) {
  const std::size_t slots = std::size_t{set.LangStride} + 1;
  return static_cast<std::int64_t>(set.BlockLength) <
         static_cast<std::int64_t>(NameField::kBytes + slots * set.Width());
}

}  // namespace vendlingua
