#ifndef VENDLINGUA_CORE_EXCHANGE_CSV_TABLE_H_
#define VENDLINGUA_CORE_EXCHANGE_CSV_TABLE_H_

#include <string>
#include <string_view>

#include "core/exchange/text_encoding.h"
#include "core/exchange/translation_table.h"

namespace vendlingua {

/// A table of translations: comma-separated values by RFC 4180, UTF-8, with the columns message,
/// origin and text, which hold their texts cell by cell. Blanks are part of a field.
std::string WriteCsv(const TranslationTable& table);

/// Reads such a table as spreadsheets hand it back: separated by commas, semicolons or tabs, lines
/// that end in CR LF, LF or CR.
TableReading ReadCsv(std::string_view content, const DetectedEncoding& encoding);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_EXCHANGE_CSV_TABLE_H_
