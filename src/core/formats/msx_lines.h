#ifndef VENDLINGUA_CORE_FORMATS_MSX_LINES_H_
#define VENDLINGUA_CORE_FORMATS_MSX_LINES_H_

#include <cstdint>
#include <string>
#include <string_view>

#include "core/document/message_set.h"

namespace vendlingua {

/// The 455 record lines of one language, ready to be written over the old ones.
struct MsxLines {
  std::int64_t position;  ///< of the first of them in the file, counted from 1
  std::string content;    ///< each line ended by CR LF
};

/// Builds the lines of language `DestLang` of `set` for the file whose content is given: each keeps
/// the first 10 characters of the old line (type, count, address) and gets the message's data and a
/// fresh checksum. Neither count nor address are computed, and the length of the old data is not
/// looked at. `DestLang` 0 stands for the first language. Throws FileError, before a byte is
/// written, when a line is missing, has no head to keep or does not end in CR LF.
MsxLines BuildMsxLines(const MessageSet& set, std::string_view content);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_FORMATS_MSX_LINES_H_
