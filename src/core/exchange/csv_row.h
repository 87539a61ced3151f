#ifndef VENDLINGUA_CORE_EXCHANGE_CSV_ROW_H_
#define VENDLINGUA_CORE_EXCHANGE_CSV_ROW_H_

#include <span>
#include <string>

namespace vendlingua {

/// Appends one row of comma-separated values by RFC 4180, ended by CR LF, to `out`.
void AppendCsvRow(std::span<const std::string> fields, std::string& out);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_EXCHANGE_CSV_ROW_H_
