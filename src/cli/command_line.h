#ifndef VENDLINGUA_CLI_COMMAND_LINE_H_
#define VENDLINGUA_CLI_COMMAND_LINE_H_

#include "cli/session.h"

namespace CLI {
class App;
}

namespace vendlingua::cli {

/// Adds all that the command line can hold to `app`. Its commands run on `session`.
void AddGrammar(CLI::App& app, Session& session);

/// Parses the command line and runs its command on `session`, which is told to refuse when that
/// cannot be done. Returns the exit status.
ExitStatus RunCommandLine(Session& session, int argc, const char* const* argv);

}  // namespace vendlingua::cli

#endif  // VENDLINGUA_CLI_COMMAND_LINE_H_
