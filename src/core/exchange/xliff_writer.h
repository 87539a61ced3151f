#ifndef VENDLINGUA_CORE_EXCHANGE_XLIFF_WRITER_H_
#define VENDLINGUA_CORE_EXCHANGE_XLIFF_WRITER_H_

#include <string>

#include "core/exchange/translation_table.h"

namespace vendlingua {

/// A table as XLIFF 1.2: one trans-unit a message. Blanks at the end of a text are left out;
/// placeholders are elements, so that nobody can type over them.
std::string WriteXliff(const TranslationTable& table);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_EXCHANGE_XLIFF_WRITER_H_
