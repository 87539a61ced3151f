#ifndef VENDLINGUA_MANUAL_GRAMMAR_H_
#define VENDLINGUA_MANUAL_GRAMMAR_H_

#include <CLI/CLI.hpp>
#include <string>
#include <vector>

// What can be typed after "vendlingua-cli", read out of the grammar that the program itself parses
// with: a command that is added there has its page and its completions without further ado.

namespace vendlingua::manual {

/// What a shell can offer for a value.
enum class Values { kNone, kAnything, kChoices, kFiles };

/// An option, or an argument that is told by its place.
struct Argument {
  std::vector<std::string> names;  ///< as they are typed, "-h" before "--help"; of a place its own
  std::string value;               ///< stands for the value, as in "FILE"; empty for a flag
  Values values = Values::kNone;   ///< kNone: takes no value
  std::vector<std::string> choices;  ///< for kChoices
  std::string description;
  bool required = false;
  bool repeatable = false;
};

struct Command {
  std::string name;
  std::string description;
  std::vector<std::string> remarks;   ///< what its help says below the options
  std::vector<std::string> examples;  ///< whole command lines
  std::vector<Argument> places;
  std::vector<Argument> options;
};

struct Grammar {
  Command program;  ///< its options may stand anywhere
  std::vector<Command> commands;
};

/// The grammar of `app`, less what it hides. An option of a command that the program has, too, is
/// told once, there.
Grammar GrammarOf(const CLI::App& app);

}  // namespace vendlingua::manual

#endif  // VENDLINGUA_MANUAL_GRAMMAR_H_
