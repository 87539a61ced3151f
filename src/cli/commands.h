#ifndef VENDLINGUA_CLI_COMMANDS_H_
#define VENDLINGUA_CLI_COMMANDS_H_

#include <CLI/CLI.hpp>

#include "cli/session.h"

// Each function adds one command to the command line; the command runs, on `session`, when it was
// parsed.

namespace vendlingua::cli {

void AddInfoCommand(CLI::App& app, Session& session);
void AddTextsCommand(CLI::App& app, Session& session);
void AddPutCommand(CLI::App& app, Session& session);
void AddNewLanguageCommand(CLI::App& app, Session& session);
void AddExportCommand(CLI::App& app, Session& session);
void AddApplyCommand(CLI::App& app, Session& session);
void AddImportCommand(CLI::App& app, Session& session);
void AddCompileCommand(CLI::App& app, Session& session);
void AddSectionsCommand(CLI::App& app, Session& session);
void AddVerifyCommand(CLI::App& app, Session& session);

}  // namespace vendlingua::cli

#endif  // VENDLINGUA_CLI_COMMANDS_H_
