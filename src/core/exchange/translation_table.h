#ifndef VENDLINGUA_CORE_EXCHANGE_TRANSLATION_TABLE_H_
#define VENDLINGUA_CORE_EXCHANGE_TRANSLATION_TABLE_H_

#include <cstddef>
#include <string>
#include <vector>

#include "core/document/alphabet.h"
#include "core/document/message_set.h"
#include "core/exchange/table_problem.h"
#include "core/layout/cell_range.h"

namespace vendlingua {

/// A piece of a text that is exchanged: characters, or neighbouring cells that the board fills.
struct TextRun {
  std::string characters;  ///< UTF-8; of a placeholder one character a cell
  bool is_placeholder = false;

  bool operator==(const TextRun&) const = default;
};
using TextRuns = std::vector<TextRun>;

/// All characters of `runs`, placeholders too: the text cell by cell.
std::string FlatText(const TextRuns& runs);

/// Cells of a placeholder.
std::size_t CellsOf(const TextRun& placeholder);

/// One message of a table.
struct TranslationRow {
  std::size_t place = 0;  ///< row or unit of the file, counted from 1
  std::size_t message = 0;
  TextRuns origin;
  TextRuns text;
  std::vector<CellRange> board_cells{};  ///< that the board fills; known of exported rows
  bool needs_translation = false;        ///< it is blank, or the same as the origin
};

enum class TableFormat { kCsv, kXliff };

/// The messages of one language beside those of the origin, as people exchange them: whatever the
/// format of the file, this is what it is written from and read into.
struct TranslationTable {
  TableFormat format = TableFormat::kCsv;
  std::string name;             ///< of the message file
  std::string source_language;  ///< language tags, as "it"
  std::string target_language;
  std::size_t width = 0;  ///< cells of a message
  std::vector<TranslationRow> rows;
};

/// A table as it was read. Where there are problems, `table` has what could be taken nevertheless.
struct TableReading {
  TranslationTable table;
  TableProblems problems;
};

/// The messages of language `language` of the open file beside those of `origin`, in the characters
/// of `alphabet`. Throws Error when the file cannot be read.
TranslationTable TableOf(const MessageSet& set, int language, int origin, const Alphabet& alphabet);

/// The same of texts that may differ from the file's.
TranslationTable TableOf(const MessageSet& set, int language, const MessageTexts& texts, int origin,
                         const Alphabet& alphabet);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_EXCHANGE_TRANSLATION_TABLE_H_
