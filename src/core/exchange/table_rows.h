#ifndef VENDLINGUA_CORE_EXCHANGE_TABLE_ROWS_H_
#define VENDLINGUA_CORE_EXCHANGE_TABLE_ROWS_H_

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "core/exchange/translation_table.h"

namespace vendlingua {

/// What the readers of all formats do with a row: its message is a number that no row before it
/// has. So a table never takes more rows than there can be messages.
class TableRows {
 public:
  struct Texts {
    TextRuns origin;
    TextRuns text;
  };

  /// Adds the row, or what is wrong with it, to `reading`.
  void Add(std::size_t place, std::string_view message, Texts texts, TableReading& reading);

 private:
  std::vector<bool> seen_;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_EXCHANGE_TABLE_ROWS_H_
