#include "core/flash/flash_image.h"

#include <fmt/format.h>

#include <algorithm>

#include "core/formats/mes_file.h"
#include "core/platform/errors.h"

namespace vendlingua {
namespace {

constexpr std::size_t kMaxNames = 20;

// Messages 0 to `LastMsg` of a language, one behind the other, as far as the file holds them.
std::string_view MessagesOf(const MessageSet& set, std::string_view mes_content, int language) {
  const auto offset = static_cast<std::size_t>(MesMessageOffset(set, language, 0));
  if (offset > mes_content.size()) {
    throw FileError(set.CurrentFileName, UiTextId::kLanguageIsMissing, language);
  }
  return mes_content.substr(offset, set.MessageCount() * set.Width());
}

std::uint8_t PackedByte(char cell) {
  const auto code = static_cast<DisplayCode>(cell);
  return code == kPlaceholder ? kBlank : code;
}

}  // namespace

void FlashImage::MatchTo(const MessageSet& set) {
  if (opened_files_ != set.OpenedFiles) {
    bytes_.assign(set.MemLength, 0);
    opened_files_ = set.OpenedFiles;
  }
}

void FlashImage::RequireInside(std::size_t end, UiTextId id) const {
  if (end > bytes_.size()) {
    throw Error(id, end, bytes_.size());
  }
}

std::vector<int> FlashImage::Pack(const MessageSet& set, std::string_view mes_content,
                                  std::span<const int> languages) {
  const std::size_t language_bytes = set.MessageCount() * set.Width();
  if (!languages.empty()) {
    RequireInside((languages.size() - 1) * set.SlotLength() + language_bytes,
                  UiTextId::kMessagesOutsideImage);
  }
  std::vector<int> short_languages;
  for (std::size_t slot = 0; slot < languages.size(); ++slot) {
    const std::string_view messages = MessagesOf(set, mes_content, languages[slot]);
    const auto slot_bytes = std::span(bytes_).subspan(slot * set.SlotLength(), language_bytes);
    const auto end =
        std::transform(messages.begin(), messages.end(), slot_bytes.begin(), PackedByte);
    std::fill(end, slot_bytes.end(), std::uint8_t{0});
    if (messages.size() < language_bytes) {
      short_languages.push_back(languages[slot]);
    }
  }
  return short_languages;
}

void FlashImage::WriteLanguageNames(const MessageSet& set) {
  const std::size_t slots = set.LangCount;
  const std::size_t width = set.Width();
  if (slots > kMaxNames) {
    throw Error(UiTextId::kTooManySlotsForNames, kMaxNames, slots);
  }
  const auto list_offset = [&](std::size_t slot) {
    return slot * set.SlotLength() + width * set.HeaderCount;
  };
  RequireInside(list_offset(slots - 1) + slots * width, UiTextId::kNamesOutsideImage);
  std::vector<std::uint8_t> names;
  for (std::size_t slot = 0; slot < slots; ++slot) {
    const auto name = Bytes().subspan(list_offset(slot), width);
    names.insert(names.end(), name.begin(), name.end());
  }
  for (std::size_t slot = 0; slot < slots; ++slot) {
    std::copy(names.begin(), names.end(),
              bytes_.begin() + static_cast<std::ptrdiff_t>(list_offset(slot)));
  }
}

}  // namespace vendlingua
