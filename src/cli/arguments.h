#ifndef VENDLINGUA_CLI_ARGUMENTS_H_
#define VENDLINGUA_CLI_ARGUMENTS_H_

#include <vector>

namespace vendlingua::cli {

/// What the program was started with, its own name first, as main() gets it. On Windows these are
/// the arguments in UTF-8, whatever code page the system has, and "*" in them stays what it is: it
/// may well be part of a message. They live as long as the program.
std::vector<const char*> Arguments(int argc, char** argv);

}  // namespace vendlingua::cli

#endif  // VENDLINGUA_CLI_ARGUMENTS_H_
