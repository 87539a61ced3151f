#ifndef VENDLINGUA_CORE_EXCHANGE_READ_TABLE_H_
#define VENDLINGUA_CORE_EXCHANGE_READ_TABLE_H_

#include <string_view>

#include "core/exchange/translation_table.h"

namespace vendlingua {

/// Reads a table of translations, whose format and encoding are told from its content.
TableReading ReadTable(std::string_view content);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_EXCHANGE_READ_TABLE_H_
