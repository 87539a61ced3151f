#ifndef VENDLINGUA_CLI_COMMANDS_H_
#define VENDLINGUA_CLI_COMMANDS_H_

#include "cli/session.h"

namespace CLI {
class App;
}

// Each function adds one command to the grammar of `app`. The command runs on `session`; it throws
// CommandFailed, WrongUsage or Error when it cannot be done.

namespace vendlingua::cli {

/// Shows what a message file or a flash file holds.
void AddInfo(CLI::App& app, Session& session);

/// Shows all messages of one language.
void AddTexts(CLI::App& app, Session& session);

/// Changes one message and saves the file in place.
void AddPut(CLI::App& app, Session& session);

/// Adds a language to a ".MES" file.
void AddNewLanguage(CLI::App& app, Session& session);

/// Writes the messages of a language as a table.
void AddExport(CLI::App& app, Session& session);

/// Takes the texts of a table into a language and saves the file in place.
void AddApply(CLI::App& app, Session& session);

/// Makes a ".MES" file of an assembler source.
void AddImport(CLI::App& app, Session& session);

/// Compiles languages into flash files.
void AddCompile(CLI::App& app, Session& session);

/// Cuts a flash file into section files.
void AddSections(CLI::App& app, Session& session);

/// Writes a sheet that a native speaker reads and signs.
void AddProof(CLI::App& app, Session& session);

/// Says whether files are sound.
void AddVerify(CLI::App& app, Session& session);

/// Says what is wrong with translations.
void AddCheck(CLI::App& app, Session& session);

/// Counts what is translated.
void AddStats(CLI::App& app, Session& session);

/// Compares two message files or two flash files. Throws Trouble instead of anything else.
void AddDiff(CLI::App& app, Session& session);

/// Fills the messages of a language from an older message file.
void AddPretranslate(CLI::App& app, Session& session);

/// Makes the ".MES" file of a new firmware with the languages of an older one.
void AddUpdate(CLI::App& app, Session& session);

/// Gives a language of a ".MES" file another name.
void AddRename(CLI::App& app, Session& session);

/// Changes the display type that a ".MES" file declares.
void AddDisplayType(CLI::App& app, Session& session);

/// Takes a save back that was interrupted.
void AddRecover(CLI::App& app, Session& session);

}  // namespace vendlingua::cli

#endif  // VENDLINGUA_CLI_COMMANDS_H_
