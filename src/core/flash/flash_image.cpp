#include "core/flash/flash_image.h"

#include <algorithm>
#include <string>

#include "core/formats/mes_file.h"
#include "core/platform/errors.h"

namespace vendlingua {
namespace {

constexpr std::size_t kMaxNames = 20;

std::size_t SlotLength(const MessageSet& set) { return set.MemLength / set.LangCount; }

}  // namespace

void FlashImage::MatchTo(const MessageSet& set) {
  if (opened_files_ != set.OpenedFiles) {
    bytes_.assign(set.MemLength, 0);
    opened_files_ = set.OpenedFiles;
  }
}

void FlashImage::RequireInside(std::size_t end, const char* what) const {
  if (end > bytes_.size()) {
    throw Error(std::string(what) + " end at byte " + std::to_string(end) +
                " of the flash image, which has " + std::to_string(bytes_.size()) +
                " bytes; nothing was written");
  }
}

void FlashImage::Pack(const MessageSet& set, std::string_view mes_content,
                      std::span<const int> languages) {
  const std::size_t language_bytes = set.MessageCount() * set.Width();
  if (!languages.empty()) {
    RequireInside((languages.size() - 1) * SlotLength(set) + language_bytes,
                  "the messages of the chosen languages");
  }
  std::size_t slot = 0;
  for (const int language : languages) {
    const auto offset = static_cast<std::size_t>(MesMessageOffset(set, language, 0));
    if (mes_content.size() < offset + language_bytes) {
      throw FileError(set.CurrentFileName,
                      "the file ends before message " + std::to_string(set.LastMsg) +
                          " of language " + std::to_string(language) +
                          "; open it as destination and save it once. Nothing was written");
    }
    const DisplayCodes codes = CodesFromBytes(mes_content.substr(offset, language_bytes));
    std::replace_copy(codes.begin(), codes.end(),
                      bytes_.begin() + static_cast<std::ptrdiff_t>(slot * SlotLength(set)),
                      kPlaceholder, kBlank);
    ++slot;
  }
}

void FlashImage::WriteLanguageNames(const MessageSet& set) {
  const std::size_t slots = set.LangCount;
  const std::size_t width = set.Width();
  if (slots > kMaxNames) {
    throw Error("the list of language names holds at most " + std::to_string(kMaxNames) +
                " slots, the file declares " + std::to_string(slots) + "; nothing was written");
  }
  const auto list_offset = [&](std::size_t slot) {
    return slot * SlotLength(set) + width * set.HeaderCount;
  };
  RequireInside(list_offset(slots - 1) + slots * width, "the language names of the last slot");
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
