#include "core/exchange/translation_table.h"

#include <utf8.h>

#include <algorithm>

#include "core/exchange/language_tags.h"
#include "core/formats/message_texts.h"
#include "core/platform/errors.h"

namespace vendlingua {
namespace {

bool IsBlank(std::span<const DisplayCode> cells) { return TrimRight(cells).empty(); }

// Makes the rows of one table.
class RowMaker {
 public:
  RowMaker(const MessageSet& set, const Alphabet& alphabet)
      : set_(set), alphabet_(alphabet), reference_(TextsOf(set, 0)) {}

  TranslationRow Row(std::size_t message, const DisplayText& origin,
                     const DisplayText& text) const {
    const auto origin_cells = origin.First(set_.Width());
    const auto cells = text.First(set_.Width());
    return {message + 1,
            message,
            Runs(message, origin_cells),
            Runs(message, cells),
            PlaceholdersOf(reference_.at(message).First(set_.Width())),
            !IsBlank(origin_cells) && (IsBlank(cells) || text == origin)};
  }

 private:
  // In a ".MSX" file the cells that the board fills are blank.
  bool IsPlaceholder(std::size_t message, std::size_t cell, DisplayCode code) const {
    return code == kPlaceholder ||
           (set_.IsMsx() && code == kBlank && reference_.at(message)[cell] == kPlaceholder);
  }

  TextRuns Runs(std::size_t message, std::span<const DisplayCode> cells) const {
    const std::string text = alphabet_.TextOf(cells);
    TextRuns runs;
    const char* next = text.data();
    for (std::size_t cell = 0; cell < cells.size(); ++cell) {
      const bool is_placeholder = IsPlaceholder(message, cell, cells[cell]);
      if (runs.empty() || runs.back().is_placeholder != is_placeholder) {
        runs.push_back({{}, is_placeholder});
      }
      const char* const start = next;
      utf8::unchecked::next(next);
      runs.back().characters.append(start, next);
    }
    return runs;
  }

  const MessageSet& set_;
  const Alphabet& alphabet_;
  MessageTexts reference_;
};

}  // namespace

std::string FlatText(const TextRuns& runs) {
  std::string text;
  for (const TextRun& run : runs) {
    text += run.characters;
  }
  return text;
}

std::size_t CellsOf(const TextRun& placeholder) {
  const std::string& text = placeholder.characters;
  return static_cast<std::size_t>(utf8::distance(text.begin(), text.end()));
}

TranslationTable TableOf(const MessageSet& set, int language, int origin,
                         const Alphabet& alphabet) {
  return TableOf(set, language, TextsOf(set, language), origin, alphabet);
}

TranslationTable TableOf(const MessageSet& set, int language, const MessageTexts& texts, int origin,
                         const Alphabet& alphabet) {
  const MessageTexts origins = TextsOf(set, origin);
  const RowMaker maker(set, alphabet);
  const std::vector<std::string> tags = LanguageTags(set);
  TranslationTable table{.name = PathText(set.CurrentFileName.filename()),
                         .source_language = tags.at(static_cast<std::size_t>(origin)),
                         .target_language = tags.at(static_cast<std::size_t>(language)),
                         .width = std::min(set.Width(), DisplayText::kCells),
                         .rows = {}};
  table.rows.reserve(set.MessageCount());
  for (std::size_t message = 0; message < set.MessageCount(); ++message) {
    table.rows.push_back(maker.Row(message, origins[message], texts[message]));
  }
  return table;
}

}  // namespace vendlingua
