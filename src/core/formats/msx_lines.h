#ifndef VENDLINGUA_CORE_FORMATS_MSX_LINES_H_
#define VENDLINGUA_CORE_FORMATS_MSX_LINES_H_

#include <string_view>

#include "core/document/message_set.h"
#include "core/platform/file_patch.h"

namespace vendlingua {

/// The 455 record lines of language `DestLang` of `set`, ready to be written over the old ones of
/// the file whose content is given: each keeps the first 10 characters of the old line (type,
/// count, address) and gets the message's data and a fresh checksum. Neither count nor address are
/// computed, and the length of the old data is not looked at. Each line ends in CR LF, also where
/// the last line of the file had no end. `DestLang` 0 stands for the first language. Throws
/// FileError, before a byte is written, when a line is missing, has no head to keep or ends in LF
/// alone.
FilePatch BuildMsxLines(const MessageSet& set, std::string_view content);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_FORMATS_MSX_LINES_H_
