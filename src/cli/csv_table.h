#ifndef VENDLINGUA_CLI_CSV_TABLE_H_
#define VENDLINGUA_CLI_CSV_TABLE_H_

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace vendlingua::cli {

using CsvRow = std::vector<std::string>;

/// A table of translations: comma-separated values by RFC 4180, UTF-8, with the columns message,
/// origin and text. Blanks are part of a field.
const CsvRow& CsvHeader();

/// All rows of `content`, the header row included. A byte order mark is passed over. Throws
/// CommandFailed, which names `file`, when a quoted field is malformed.
std::vector<CsvRow> ParseCsv(const std::string& file, std::string_view content);

/// Appends one row, ended by CR LF, to `out`.
void AppendCsvRow(const CsvRow& row, std::string& out);

}  // namespace vendlingua::cli

#endif  // VENDLINGUA_CLI_CSV_TABLE_H_
