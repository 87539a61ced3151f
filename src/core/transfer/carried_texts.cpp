#include "core/transfer/carried_texts.h"

#include <algorithm>

#include "core/formats/message_texts.h"
#include "core/platform/errors.h"

namespace vendlingua {
namespace {

DisplayText WithPlaceholders(const DisplayText& text, const DefaultMessage& built_in) {
  DisplayCodes cells(text.Cells().begin(), text.Cells().end());
  for (std::size_t cell = 0; cell < built_in.size(); ++cell) {
    if (built_in.at(cell) == kPlaceholder && cells[cell] == kBlank) {
      cells[cell] = kPlaceholder;
    }
  }
  return DisplayText(cells);
}

}  // namespace

MessageTexts TextsToCarry(const MessageSet& set, int language) {
  if (set.Width() > DisplayText::kCells) {
    throw FileError(set.CurrentFileName, UiTextId::kTooWideToEdit, set.Width(),
                    DisplayText::kCells);
  }
  MessageTexts texts = TextsOf(set, set.file_content, language);
  if (set.IsMsx()) {
    std::transform(texts.begin(), texts.end(), BuiltInMessages().begin(), texts.begin(),
                   WithPlaceholders);
  }
  return texts;
}

DisplayCodes CellsToStore(const MessageSet& set, const DisplayText& text) {
  const auto cells = text.First(set.Width());
  DisplayCodes stored(cells.begin(), cells.end());
  if (set.IsMsx()) {
    std::replace(stored.begin(), stored.end(), kPlaceholder, kBlank);
  }
  return stored;
}

}  // namespace vendlingua
