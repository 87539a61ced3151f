#ifndef VENDLINGUA_CLI_TABLE_FILES_H_
#define VENDLINGUA_CLI_TABLE_FILES_H_

#include <string>
#include <vector>

#include "core/document/message_set.h"

namespace vendlingua::cli {

/// A table of translations and the language that it goes into.
struct TableFile {
  std::string path;
  int language = 0;
};

/// The tables in a folder, which are named as "export --all" names them, in the order of their
/// languages. Throws CommandFailed when a table belongs to no language, when a language has two,
/// and when there are none.
std::vector<TableFile> TablesIn(const std::string& folder, const MessageSet& set);

}  // namespace vendlingua::cli

#endif  // VENDLINGUA_CLI_TABLE_FILES_H_
