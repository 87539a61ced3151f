#ifndef VENDLINGUA_CORE_EXCHANGE_TABLE_ROWS_H_
#define VENDLINGUA_CORE_EXCHANGE_TABLE_ROWS_H_

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "core/exchange/translation_table.h"

namespace vendlingua {

/// What a text of a message can need by far, in bytes.
inline constexpr std::size_t kLongestField = 4096;

/// What the readers of all formats do with a row: its message is a number that no row before it
/// has. So a table never takes more rows than there can be messages, and no more memory than the
/// texts of any message file need.
class TableRows {
 public:
  struct Texts {
    TextRuns origin;
    TextRuns text;
  };

  /// Adds the row, or what is wrong with it, to `reading`.
  void Add(std::size_t place, std::string_view message, Texts texts, TableReading& reading);

 private:
  bool HasRoomFor(const Texts& texts);

  std::vector<bool> seen_;
  std::size_t bytes_ = 0;  ///< that the rows take
};

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_EXCHANGE_TABLE_ROWS_H_
