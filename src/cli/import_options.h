#ifndef VENDLINGUA_CLI_IMPORT_OPTIONS_H_
#define VENDLINGUA_CLI_IMPORT_OPTIONS_H_

#include <CLI/CLI.hpp>
#include <filesystem>
#include <string>
#include <vector>

#include "cli/session.h"

// What "import" and "update" have in common.

namespace vendlingua::cli {

/// The answers to the questions of an import. Numbers are as the input boxes of the engine take
/// them.
struct ImportOptions {
  std::string source;
  std::string languages;
  std::string language_message;  ///< empty when not given
  std::string memory_start;
  std::string memory_length;
  std::vector<std::string> names;
  std::string output;
};

/// Adds them to the grammar of a command; source and output are required.
void AddImportOptions(CLI::App& command, ImportOptions& options);

/// The file to make. Throws CommandFailed when it could not be opened again or would take the place
/// of the source.
std::filesystem::path OutputPath(const ImportOptions& options);

/// Imports the source into the file `place`. Names that no section has taken are left in the
/// answers. Throws CommandFailed when the import did not come to its end.
void ImportSource(Session& session, const ImportOptions& options,
                  const std::filesystem::path& place);

/// Throws CommandFailed when a name of the options was left.
void RequireAllNamesTaken(const Session& session, const ImportOptions& options);

}  // namespace vendlingua::cli

#endif  // VENDLINGUA_CLI_IMPORT_OPTIONS_H_
