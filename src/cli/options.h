#ifndef VENDLINGUA_CLI_OPTIONS_H_
#define VENDLINGUA_CLI_OPTIONS_H_

#include <CLI/CLI.hpp>
#include <string>
#include <vector>

#include "cli/session.h"

// Parts of the grammar that several commands share.

namespace vendlingua::cli {

/// The message file that a command works on.
void AddFile(CLI::App& command, std::string& file);

/// A language of the file by its number or its name, as Session::FindLanguage() takes it.
CLI::Option* AddLanguage(CLI::App& command, std::string& language,
                         const std::string& description = "number or name of the language");

/// The language that others are checked against.
void AddOrigin(CLI::App& command, std::string& origin);

/// Languages by their numbers or names, separated by commas; all but 0 if none is given.
void AddLanguages(CLI::App& command, const std::string& option,
                  std::vector<std::string>& languages);

/// The display whose characters texts are read and written in.
void AddDisplay(CLI::App& command, Session& session);

/// Accepts the name of a display and hands on the number of its type.
CLI::Validator DisplayName();

/// Accepts a number in decimal, "&H" or "0x" notation and hands it on as the input boxes of the
/// engine take it: "0x" becomes "&H".
CLI::Validator NumberAnswer();

}  // namespace vendlingua::cli

#endif  // VENDLINGUA_CLI_OPTIONS_H_
