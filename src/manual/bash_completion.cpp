#include <fmt/format.h>

#include "manual/completions.h"

namespace vendlingua::manual {
namespace {

// "{0}" are the commands as a pattern, "{1}" the cases of values, "{2}" those of other words.
constexpr const char* kBashScript = R"(# bash completion for vendlingua-cli
_vendlingua_cli() {{
  local current=${{COMP_WORDS[COMP_CWORD]}} before=${{COMP_WORDS[COMP_CWORD-1]}}
  local command='' options='' words='' files='' word
  for word in "${{COMP_WORDS[@]:1:COMP_CWORD-1}}"; do
    case $word in
      {0}) command=$word; break ;;
    esac
  done
  # In --option=value the sign is a word of its own.
  if [[ $current == '=' ]]; then
    current=''
  elif [[ $before == '=' ]]; then
    before=${{COMP_WORDS[COMP_CWORD-2]}}
  fi
  case "$command $before" in
{1}    *)
      case $command in
{2}      esac
      [[ $current != -* ]] || {{ words=$options; files=''; }}
      ;;
  esac
  mapfile -t COMPREPLY < <(compgen ${{files:+-f}} -W "$words" -- "$current")
  [[ -z $files ]] || compopt -o filenames 2>/dev/null
}}
complete -F _vendlingua_cli vendlingua-cli
)";

std::string BashValues(const Command& command) {
  std::string cases;
  for (const Argument& option : command.options) {
    for (const std::string& name : option.names) {
      if (option.values == Values::kAnything) {
        cases += fmt::format("    '{} {}') ;;\n", command.name, name);
      } else if (option.values == Values::kFiles) {
        cases += fmt::format("    '{} {}') files=yes ;;\n", command.name, name);
      } else if (option.values == Values::kChoices) {
        cases += fmt::format("    '{} {}') words='{}' ;;\n", command.name, name,
                             fmt::join(option.choices, " "));
      }
    }
  }
  return cases;
}

// What fits any place of the command.
std::string BashPlaces(const Command& command) {
  std::vector<std::string> choices;
  bool files = false;
  for (const Argument& place : command.places) {
    choices.insert(choices.end(), place.choices.begin(), place.choices.end());
    files = files || place.values == Values::kFiles;
  }
  return fmt::format("; words='{}'; files={}", fmt::join(choices, " "), files ? "yes" : "''");
}

void AppendBashOptions(const Command& command, std::string& names) {
  for (const Argument& option : command.options) {
    names += (names.empty() ? "" : " ") + option.names.back();
  }
}

}  // namespace

std::string BashCompletion(const Grammar& grammar) {
  std::vector<std::string> commands;
  std::string common;
  AppendBashOptions(grammar.program, common);
  std::string values;
  std::string words;
  for (const Command& command : grammar.commands) {
    std::string options = common;
    AppendBashOptions(command, options);
    commands.push_back(command.name);
    values += BashValues(command);
    words +=
        fmt::format("        {}) options='{}'{} ;;\n", command.name, options, BashPlaces(command));
  }
  words +=
      fmt::format("        '') options='{}'; words='{}' ;;\n", common, fmt::join(commands, " "));
  return fmt::format(kBashScript, fmt::join(commands, "|"), values, words);
}

}  // namespace vendlingua::manual
