#include <fmt/format.h>

#include "manual/completions.h"

namespace vendlingua::manual {
namespace {

constexpr const char* kComplete = "complete -c vendlingua-cli";

std::string FishQuoted(const std::string& text) {
  std::string quoted = "'";
  for (const char character : text) {
    if (character == '\'' || character == '\\') {
      quoted += '\\';
    }
    quoted += character;
  }
  return quoted + "'";
}

std::string FishName(const Argument& option) {
  std::string flags;
  for (const std::string& name : option.names) {
    flags += name.starts_with("--") ? " -l " + name.substr(2) : " -s " + name.substr(1);
  }
  return flags;
}

std::string FishValue(const Argument& option) {
  switch (option.values) {
    case Values::kFiles:
      return " -r -F";
    case Values::kChoices:
      return fmt::format(" -x -a '{}'", fmt::join(option.choices, " "));
    case Values::kAnything:
      return " -x";
    case Values::kNone:
      break;
  }
  return "";
}

std::string FishPlace(const Argument& place) {
  return place.values == Values::kFiles ? " -F" : FishValue(place);
}

std::string FishOptions(const Command& command, const std::string& condition) {
  std::string lines;
  for (const Argument& option : command.options) {
    lines += fmt::format("{}{}{}{} -d {}\n", kComplete, condition, FishName(option),
                         FishValue(option), FishQuoted(option.description));
  }
  return lines;
}

}  // namespace

std::string FishCompletion(const Grammar& grammar) {
  std::string script = fmt::format("{} -f\n", kComplete) + FishOptions(grammar.program, "");
  for (const Command& command : grammar.commands) {
    const std::string condition = fmt::format(" -n '__fish_seen_subcommand_from {}'", command.name);
    script += fmt::format("{} -n __fish_use_subcommand -a {} -d {}\n", kComplete, command.name,
                          FishQuoted(command.description));
    script += FishOptions(command, condition);
    for (const Argument& place : command.places) {
      script += fmt::format("{}{}{}\n", kComplete, condition, FishPlace(place));
    }
  }
  return script;
}

}  // namespace vendlingua::manual
