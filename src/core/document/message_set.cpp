#include "core/document/message_set.h"

#include <limits>

#include "core/document/name_field.h"
#include "core/platform/errors.h"

namespace vendlingua {

void MessageSet::CloseFile() {
  CurrentFileName.clear();
  CurrentFileType.clear();
}

std::uint16_t MesLangStride(std::uint32_t mem_length, std::uint32_t lang_count, std::size_t width) {
  if (lang_count == 0) {
    throw Error("the number of languages is 0");
  }
  if (width == 0) {
    throw Error("the message width is 0");
  }
  const std::size_t stride = mem_length / lang_count / width;
  if (stride > std::numeric_limits<std::uint16_t>::max()) {
    throw Error("a memory of " + std::to_string(mem_length) + " bytes gives " +
                std::to_string(stride) + " messages a language, at most 65535 are possible");
  }
  return static_cast<std::uint16_t>(stride);
}

std::uint16_t MsxLangStride(std::uint32_t mem_length) {
  constexpr std::uint32_t kSlots = 9;
  constexpr std::uint32_t kRecordBytes = 16;
  return static_cast<std::uint16_t>(mem_length / kSlots / kRecordBytes);
}

float MesBlockLength(std::uint8_t last_col, std::uint16_t lang_stride) {
  const std::size_t length =
      (std::size_t{last_col} + 1) * (std::size_t{lang_stride} + 1) + NameField::kBytes;
  return static_cast<std::int16_t>(static_cast<std::uint16_t>(length));
}

}  // namespace vendlingua
