#include "cli/csv_table.h"

#include <csv.h>

#include <memory>

#include "cli/session.h"

namespace vendlingua::cli {
namespace {

struct ParsedRows {
  std::vector<CsvRow> rows;
  CsvRow row;
};

void EndField(void* field, std::size_t length, void* data) {
  static_cast<ParsedRows*>(data)->row.emplace_back(static_cast<const char*>(field), length);
}

void EndRow(int /*end*/, void* data) {
  auto* parsed = static_cast<ParsedRows*>(data);
  parsed->rows.push_back(std::move(parsed->row));
  parsed->row.clear();
}

int IsNoSpace(unsigned char /*character*/) { return 0; }

}  // namespace

const CsvRow& CsvHeader() {
  static const CsvRow kHeader = {"message", "origin", "text"};
  return kHeader;
}

std::vector<CsvRow> ParseCsv(const std::string& file, std::string_view content) {
  constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
  if (content.starts_with(kByteOrderMark)) {
    content.remove_prefix(kByteOrderMark.size());
  }
  csv_parser parser;
  csv_init(&parser, CSV_STRICT | CSV_STRICT_FINI);
  const std::unique_ptr<csv_parser, decltype(&csv_free)> guard(&parser, &csv_free);
  // The library would trim unquoted fields; blanks at the start of a message centre it.
  csv_set_space_func(&parser, &IsNoSpace);
  // No field is longer than the file. By itself the parser's buffer would grow by 128 bytes at a
  // time.
  csv_set_blk_size(&parser, content.size() + 1);
  ParsedRows parsed;
  const std::size_t done =
      csv_parse(&parser, content.data(), content.size(), &EndField, &EndRow, &parsed);
  if (done != content.size() || csv_fini(&parser, &EndField, &EndRow, &parsed) != 0) {
    throw CommandFailed(file + ": row " + std::to_string(parsed.rows.size() + 1) +
                        " is no comma-separated row: check its quotes");
  }
  return parsed.rows;
}

void AppendCsvRow(const CsvRow& row, std::string& out) {
  for (std::size_t i = 0; i < row.size(); ++i) {
    const std::string& field = row[i];
    std::string quoted(2 * field.size() + 2, '\0');
    quoted.resize(csv_write(quoted.data(), quoted.size(), field.data(), field.size()));
    out += (i == 0 ? "" : ",") + quoted;
  }
  out += "\r\n";
}

}  // namespace vendlingua::cli
