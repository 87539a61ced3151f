#include "core/formats/message_texts.h"

#include "core/formats/mes_file.h"
#include "core/formats/msx_file.h"
#include "core/platform/in_place_change.h"

namespace vendlingua {

bool IsInFile(const MessageSet& set, int language) {
  return language != kNewLanguage && (set.IsMes() || language != 0);
}

MessageTexts TextsOf(const MessageSet& set, int language) {
  const std::string content =
      IsInFile(set, language) ? ReadSharedFile(set.CurrentFileName) : std::string();
  return TextsOf(set, content, language);
}

MessageTexts TextsOf(const MessageSet& set, std::string_view content, int language) {
  if (language == kNewLanguage) {
    return MessageTexts(set.MessageCount());
  }
  if (set.IsMes()) {
    return MesTexts(set, content, language);
  }
  if (language == 0) {
    return {BuiltInMessages().begin(), BuiltInMessages().end()};
  }
  return MsxTexts(set, content, language);
}

DisplayCodes CellsOf(const MessageSet& set, std::string_view content, int language) {
  if (set.IsMes()) {
    return MesCells(set, content, language);
  }
  DisplayCodes cells;
  for (const DisplayText& text : TextsOf(set, content, language)) {
    const auto shown = text.First(set.Width());
    cells.insert(cells.end(), shown.begin(), shown.end());
  }
  return cells;
}

}  // namespace vendlingua
