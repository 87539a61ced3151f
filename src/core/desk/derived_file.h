#ifndef VENDLINGUA_CORE_DESK_DERIVED_FILE_H_
#define VENDLINGUA_CORE_DESK_DERIVED_FILE_H_

#include <filesystem>
#include <string_view>

#include "core/document/message_set.h"

namespace vendlingua {

/// Writes a file that is made of the open one, a table or a picture of it. Throws FileError when it
/// cannot be written, and when it would take the place of the open file.
void WriteDerivedFile(const MessageSet& set, const std::filesystem::path& file,
                      std::string_view content);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_DESK_DERIVED_FILE_H_
