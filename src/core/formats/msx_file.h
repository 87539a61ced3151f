#ifndef VENDLINGUA_CORE_FORMATS_MSX_FILE_H_
#define VENDLINGUA_CORE_FORMATS_MSX_FILE_H_

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/formats/mes_file.h"

// The layout of ".MSX" files: an S0 record that names the firmware, then one S2 record a message,
// language after language, each language `LangStride` lines. The dimensions are fixed.

namespace vendlingua {

/// The dimensions of every ".MSX" file, laid out like the header of a ".MES" file. The leading
/// blank stands where that has its `LangCount` and is not used.
inline constexpr std::string_view kMsxConfiguration =
    " \x0F"
    "0300AB01C600FF0000FFF0";

/// Whether a firmware model, four characters, has ".MSX" files that can be edited: "0417" or
/// "0405".
bool IsManagedModel(std::string_view model);

/// Whether the first line of a file is an S0 record that names a managed firmware model.
bool IsMsxHeader(std::string_view first_line);

/// The names of languages 1, 2, ... as captions; nothing when the file does not begin with an S0
/// record or holds an S0 record that names another firmware model. Throws FileError when a name
/// record cannot be decoded, or a line ends in LF alone, because no language could be saved then.
std::optional<std::vector<std::string>> ReadMsxNames(const MessageSet& set,
                                                     std::string_view content);

/// Messages 0 to `LastMsg` of language `language` (counted from 1) of the file whose content is
/// given. Throws FileError when a line is missing or holds no message.
MessageTexts MsxTexts(const MessageSet& set, std::string_view content, int language);

/// The number of lines before the first message line of `language`; language 0, which a ".MSX" file
/// does not have, counts as the first.
std::size_t MsxLinesBefore(const MessageSet& set, int language);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_FORMATS_MSX_FILE_H_
