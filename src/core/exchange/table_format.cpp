#include "core/exchange/table_format.h"

#include "core/exchange/csv_table.h"
#include "core/exchange/xliff_writer.h"
#include "core/platform/errors.h"
#include "core/texts/ascii_case.h"

namespace vendlingua {
namespace {

std::string ExtensionOf(const std::filesystem::path& file) {
  return UpperCase(PathText(file.extension()));
}

}  // namespace

bool HasTableName(const std::filesystem::path& file) {
  return FormatOf(file) == TableFormat::kXliff || ExtensionOf(file) == ".CSV";
}

TableFormat FormatOf(const std::filesystem::path& file) {
  const std::string extension = ExtensionOf(file);
  return extension == ".XLIFF" || extension == ".XLF" ? TableFormat::kXliff : TableFormat::kCsv;
}

std::string WriteTable(const TranslationTable& table, TableFormat format) {
  return format == TableFormat::kXliff ? WriteXliff(table) : WriteCsv(table);
}

}  // namespace vendlingua
