#include "cli/command_line.h"

#include <fmt/format.h>

#include <CLI/CLI.hpp>
#include <algorithm>
#include <array>
#include <exception>
#include <iostream>
#include <optional>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "cli/commands.h"
#include "core/transfer/similarity.h"
#include "core/version.h"

namespace vendlingua::cli {
namespace {

struct CommandEntry {
  std::string_view name;
  void (*add)(CLI::App&, Session&);
};

constexpr std::array<CommandEntry, 19> kCommands = {{{"info", AddInfo},
                                                     {"texts", AddTexts},
                                                     {"put", AddPut},
                                                     {"new-language", AddNewLanguage},
                                                     {"export", AddExport},
                                                     {"apply", AddApply},
                                                     {"import", AddImport},
                                                     {"compile", AddCompile},
                                                     {"sections", AddSections},
                                                     {"proof", AddProof},
                                                     {"verify", AddVerify},
                                                     {"check", AddCheck},
                                                     {"stats", AddStats},
                                                     {"diff", AddDiff},
                                                     {"pretranslate", AddPretranslate},
                                                     {"update", AddUpdate},
                                                     {"rename", AddRename},
                                                     {"display-type", AddDisplayType},
                                                     {"recover", AddRecover}}};

// What stands before and behind any command.
void AddProgram(CLI::App& app, Session& session) {
  app.name("vendlingua-cli");
  app.description(
      "Edits the display messages of vending machines and compiles them into flash files.");
  app.set_version_flag("--version", "vendlingua-cli " + std::string(kVersion));
  app.add_flag("--json", session.json_output, "print JSON for programs");
  app.require_subcommand(1);
  app.fallthrough();
  // "/" begins a path everywhere.
  app.allow_windows_style_options(false);
}

// The grammar of a line that begins with a command is that of the command: to set up all of them
// takes longer than most commands run.
void AddGrammarOf(CLI::App& app, Session& session, std::string_view first) {
  const auto* command = std::ranges::find(kCommands, first, &CommandEntry::name);
  if (command == kCommands.end()) {
    AddGrammar(app, session);
    return;
  }
  AddProgram(app, session);
  command->add(app, session);
}

// What stands where a command is expected.
std::optional<std::string> UnknownCommand(const CLI::App& app) {
  const std::vector<std::string> left_over = app.remaining();
  const auto word = std::find_if(left_over.begin(), left_over.end(),
                                 [](const std::string& given) { return !given.starts_with('-'); });
  return app.get_subcommands().empty() && word != left_over.end() ? std::optional(*word)
                                                                  : std::nullopt;
}

// The command that is spelled most like a word; empty when none is.
std::string NearestCommand(const CLI::App& app, const std::string& word) {
  constexpr double kLeastRatio = 0.6;
  const SimilarityTo meant(word);
  std::string nearest;
  double best = kLeastRatio;
  for (const CLI::App* command : app.get_subcommands(nullptr)) {
    const double ratio = meant.Ratio(command->get_name());
    if (ratio > best) {
      nearest = command->get_name();
      best = ratio;
    }
  }
  return nearest;
}

std::string NoCommand(const CLI::App& app, const std::string& word) {
  const std::string nearest = NearestCommand(app, word);
  return "\"" + word + "\" is no command" +
         (nearest.empty() ? "." : "; did you mean \"" + nearest + "\"?");
}

// What is wrong with a command line. The parser would name left-over arguments in reverse order.
std::string ReasonOf(const CLI::App& app, const CLI::ParseError& error) {
  if (const auto word = UnknownCommand(app)) {
    return NoCommand(app, *word) + " See vendlingua-cli --help";
  }
  const auto commands = app.get_subcommands();
  const std::string command = commands.empty() ? "" : " " + commands.front()->get_name();
  const bool has_left_over = dynamic_cast<const CLI::ExtrasError*>(&error) != nullptr;
  const std::string reason =
      has_left_over ? fmt::format("not expected: {}", fmt::join(app.remaining(true), " "))
                    : std::string(error.what());
  return fmt::format("{}; see vendlingua-cli{} --help", reason, command);
}

// Help that was asked for is no error.
void ParseOrHelp(CLI::App& app, int argc, const char* const* argv) {
  try {
    app.parse(argc, argv);
  } catch (const CLI::Success& help) {
    std::ostringstream out;
    app.exit(help, out, out);
    std::cout << out.str();
  } catch (const CLI::ParseError& error) {
    throw WrongUsage(ReasonOf(app, error));
  }
}

}  // namespace

void AddGrammar(CLI::App& app, Session& session) {
  AddProgram(app, session);
  for (const CommandEntry& command : kCommands) {
    command.add(app, session);
  }
}

ExitStatus RunCommandLine(Session& session, int argc, const char* const* argv) {
  CLI::App app;
  AddGrammarOf(app, session, argc > 1 ? argv[1] : "");
  // A line that cannot be parsed is refused as JSON, too.
  session.json_output =
      std::any_of(argv, argv + argc, [](std::string_view given) { return given == "--json"; });
  try {
    ParseOrHelp(app, argc, argv);
    return session.status;
  } catch (const Refusal& refusal) {
    session.Refuse(refusal.what());
    return refusal.status();
  } catch (const std::exception& error) {
    session.Refuse(error.what());
    return ExitStatus::kFailed;
  }
}

}  // namespace vendlingua::cli
