#ifndef VENDLINGUA_CORE_FORMATS_SOURCE_LINE_H_
#define VENDLINGUA_CORE_FORMATS_SOURCE_LINE_H_

#include <optional>
#include <string>
#include <string_view>

namespace vendlingua {

/// The text that one line of a firmware assembler source quotes (bytes are display codes); nothing
/// for a line without quotes. Apostrophes and double quotes may open and close a text, and the
/// outermost pair wins. A doubled apostrophe stands for one apostrophe. A doubled double quote is
/// not undone: it removes the character behind the apostrophe that has its place in the table of
/// apostrophes, and the line's first character where there is none, as the firmware's sources have
/// always been read. Only the first 67 quotes of each kind count, and a text must open before
/// column 255. Throws Error when the quotes enclose no text, as a quote alone on its line does.
std::optional<std::string> QuotedText(std::string_view line);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_FORMATS_SOURCE_LINE_H_
