#ifndef VENDLINGUA_CORE_EXCHANGE_TABLE_FORMAT_H_
#define VENDLINGUA_CORE_EXCHANGE_TABLE_FORMAT_H_

#include <filesystem>
#include <string>

#include "core/exchange/translation_table.h"

namespace vendlingua {

/// Whether a file is named like a table: ".csv", ".xliff" or ".xlf", in any case.
bool HasTableName(const std::filesystem::path& file);

/// The format that a file is written in when only its name tells: ".xliff" and ".xlf" are XLIFF,
/// everything else is CSV.
TableFormat FormatOf(const std::filesystem::path& file);

/// The content of a file that holds the table.
std::string WriteTable(const TranslationTable& table, TableFormat format);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_EXCHANGE_TABLE_FORMAT_H_
