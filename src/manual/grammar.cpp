#include "manual/grammar.h"

#include <algorithm>
#include <cstddef>
#include <sstream>
#include <string_view>

namespace vendlingua::manual {
namespace {

constexpr std::string_view kExample = "Example: ";

std::vector<std::string> Split(const std::string& text, char separator) {
  std::vector<std::string> parts;
  std::istringstream stream(text);
  for (std::string part; std::getline(stream, part, separator);) {
    parts.push_back(part);
  }
  return parts;
}

// Validators describe a set as "a|b" or "{a,b}".
std::vector<std::string> ChoicesIn(const std::string& validator) {
  if (validator.starts_with('{') && validator.ends_with('}')) {
    return Split(validator.substr(1, validator.size() - 2), ',');
  }
  if (validator.find('|') != std::string::npos) {
    return Split(validator, '|');
  }
  return {};
}

// What is only a text may be the name of a file.
bool MayBeAFile(const std::string& type) {
  return type == "TEXT" || type == "FILE" || type == "FOLDER";
}

// The parser knows a value as "TYPE" or "TYPE:validator". What is only a text may be the name of a
// file.
void DescribeValue(const std::string& type, Argument& argument) {
  const std::size_t colon = type.find(':');
  const std::string validator = colon == std::string::npos ? "" : type.substr(colon + 1);
  argument.value = type.substr(0, colon);
  argument.choices = ChoicesIn(validator);
  if (!argument.choices.empty()) {
    argument.values = Values::kChoices;
  } else if (validator.empty() && MayBeAFile(argument.value)) {
    argument.values = Values::kFiles;
  } else {
    argument.values = Values::kAnything;
    argument.value = validator.empty() ? argument.value : validator;
  }
}

Argument ArgumentOf(const CLI::Option& option) {
  Argument argument;
  for (const std::string& name : option.get_snames()) {
    argument.names.push_back("-" + name);
  }
  for (const std::string& name : option.get_lnames()) {
    argument.names.push_back("--" + name);
  }
  if (option.get_items_expected_max() > 0) {
    DescribeValue(option.get_type_name(), argument);
  }
  if (option.get_positional()) {
    argument.names = {option.get_name(true)};
    argument.value = argument.names.front();
  }
  argument.description = option.get_description();
  argument.required = option.get_required();
  argument.repeatable = option.get_items_expected_max() > 1;
  return argument;
}

// Groups of options are commands without a name.
void AddArguments(const CLI::App& app, Command& command) {
  for (const CLI::Option* option : app.get_options()) {
    if (!option->get_group().empty()) {
      auto& arguments = option->get_positional() ? command.places : command.options;
      arguments.push_back(ArgumentOf(*option));
    }
  }
  for (const CLI::App* group : app.get_subcommands([](const CLI::App* /*any*/) { return true; })) {
    if (group->get_name().empty()) {
      AddArguments(*group, command);
    }
  }
}

Command CommandOf(const CLI::App& app) {
  Command command;
  command.name = app.get_name();
  command.description = app.get_description();
  for (const std::string& line : Split(app.get_footer(), '\n')) {
    if (line.starts_with(kExample)) {
      command.examples.push_back(line.substr(kExample.size()));
    } else {
      command.remarks.push_back(line);
    }
  }
  AddArguments(app, command);
  return command;
}

void RemoveOptionsOf(const Command& program, Command& command) {
  std::erase_if(command.options, [&program](const Argument& option) {
    return std::ranges::any_of(program.options, [&option](const Argument& common) {
      return common.names == option.names;
    });
  });
}

}  // namespace

Grammar GrammarOf(const CLI::App& app) {
  Grammar grammar;
  grammar.program = CommandOf(app);
  for (const CLI::App* command :
       app.get_subcommands([](const CLI::App* any) { return !any->get_group().empty(); })) {
    if (!command->get_name().empty()) {
      grammar.commands.push_back(CommandOf(*command));
      RemoveOptionsOf(grammar.program, grammar.commands.back());
    }
  }
  return grammar;
}

}  // namespace vendlingua::manual
