#ifndef VENDLINGUA_CORE_EXCHANGE_XLIFF_READER_H_
#define VENDLINGUA_CORE_EXCHANGE_XLIFF_READER_H_

#include <string_view>

#include "core/exchange/text_encoding.h"
#include "core/exchange/translation_table.h"

namespace vendlingua {

/// Reads XLIFF 1.x as translation tools hand it back: in files, groups and segments of theirs, and
/// by way of PO files, which tell the message in a reference. A unit without target, or with an
/// empty one that is not marked as translated, is left out.
TableReading ReadXliff(std::string_view content, const DetectedEncoding& encoding);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_EXCHANGE_XLIFF_READER_H_
