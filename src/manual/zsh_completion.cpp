#include <fmt/format.h>

#include <string_view>

#include "manual/completions.h"

namespace vendlingua::manual {
namespace {

// "{0}" are the options of the program, "{1}" the commands, "{2}" the cases of their arguments.
constexpr const char* kZshScript = R"(#compdef vendlingua-cli
local context state state_descr line
typeset -A opt_args
local -a common commands
common=(
{0})
commands=(
{1})
_arguments -C $common '1: :->command' '*:: :->arguments'
case $state in
  command) _describe command commands ;;
  arguments)
    case $words[1] in
{2}    esac
    ;;
esac
)";

// A text within single quotes, in which `special` characters have a meaning.
std::string ZshQuoted(const std::string& text, std::string_view special) {
  std::string quoted;
  for (const char character : text) {
    if (special.find(character) != std::string_view::npos) {
      quoted += '\\';
    }
    quoted += character;
    if (character == '\'') {
      quoted += "\\''";
    }
  }
  return quoted;
}

std::string ZshAction(const Argument& argument) {
  switch (argument.values) {
    case Values::kFiles:
      return "_files";
    case Values::kChoices:
      return fmt::format("({})", fmt::join(argument.choices, " "));
    case Values::kAnything:
    case Values::kNone:
      break;
  }
  return " ";
}

std::string ZshOption(const Argument& option, const std::string& name) {
  const bool has_value = option.values != Values::kNone;
  return fmt::format("'{}{}{}[{}]{}'", option.repeatable ? "*" : "", name, has_value ? "=" : "",
                     ZshQuoted(option.description, "[]\\"),
                     has_value ? ":" + option.value + ":" + ZshAction(option) : "");
}

std::string ZshOptions(const Command& command, std::string_view before, std::string_view behind) {
  std::string specs;
  for (const Argument& option : command.options) {
    for (const std::string& name : option.names) {
      specs += fmt::format("{}{}{}", before, ZshOption(option, name), behind);
    }
  }
  return specs;
}

std::string ZshPlaces(const Command& command) {
  std::string specs;
  for (const Argument& place : command.places) {
    specs += fmt::format(" '{}:{}:{}'", place.repeatable ? "*" : "", place.value, ZshAction(place));
  }
  return specs;
}

}  // namespace

std::string ZshCompletion(const Grammar& grammar) {
  std::string commands;
  std::string cases;
  for (const Command& command : grammar.commands) {
    commands += fmt::format("  '{}:{}'\n", command.name, ZshQuoted(command.description, ":\\"));
    cases += fmt::format("      {}) _arguments $common{}{} ;;\n", command.name,
                         ZshOptions(command, " ", ""), ZshPlaces(command));
  }
  return fmt::format(kZshScript, ZshOptions(grammar.program, "  ", "\n"), commands, cases);
}

}  // namespace vendlingua::manual
