#ifndef VENDLINGUA_CLI_NUMBER_OPTION_H_
#define VENDLINGUA_CLI_NUMBER_OPTION_H_

#include <CLI/CLI.hpp>

namespace vendlingua::cli {

/// Accepts a number in decimal, "&H" or "0x" notation and hands it on as the input boxes of the
/// engine take it: "0x" becomes "&H".
CLI::Validator NumberAnswer();

}  // namespace vendlingua::cli

#endif  // VENDLINGUA_CLI_NUMBER_OPTION_H_
