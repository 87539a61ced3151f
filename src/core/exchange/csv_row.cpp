#include "core/exchange/csv_row.h"

#include <csv.h>

namespace vendlingua {

void AppendCsvRow(std::span<const std::string> fields, std::string& out) {
  for (std::size_t i = 0; i < fields.size(); ++i) {
    const std::string& field = fields[i];
    std::string quoted(2 * field.size() + 2, '\0');
    quoted.resize(csv_write(quoted.data(), quoted.size(), field.data(), field.size()));
    out += (i == 0 ? "" : ",") + quoted;
  }
  out += "\r\n";
}

}  // namespace vendlingua
