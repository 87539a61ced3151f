#ifndef VENDLINGUA_CLI_FLASH_INFO_H_
#define VENDLINGUA_CLI_FLASH_INFO_H_

#include <optional>
#include <string>

#include "cli/session.h"
#include "core/formats/flash_file.h"

namespace vendlingua::cli {

/// What "info" prints of a flash file. `dimensions` are those of its board, if they are known; the
/// names of the languages are in the characters of its display.
void PrintFlashInfo(Session& session, const std::string& path, const FlashFile& file,
                    const std::optional<MessageSet>& dimensions);

}  // namespace vendlingua::cli

#endif  // VENDLINGUA_CLI_FLASH_INFO_H_
