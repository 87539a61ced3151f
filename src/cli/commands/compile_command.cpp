#include <fmt/format.h>

#include <iostream>
#include <memory>
#include <string>

#include "cli/commands.h"
#include "cli/options.h"
#include "core/platform/errors.h"

namespace vendlingua::cli {
namespace {

struct CompileOptions {
  std::string file;
  std::vector<std::string> languages;
  std::string output;
  std::string copy;
};

void TickLanguages(Session& session, const std::vector<std::string>& languages) {
  MessageSet& set = session.set();
  CompilerState& compiler = session.engine.compiler_state;
  for (const std::string& given : languages) {
    const int language = session.FindLanguage(given);
    if (language == 0) {
      throw CommandFailed("--languages: language 0 is the reference and is not compiled");
    }
    bool& ticked = compiler.ticked.at(static_cast<std::size_t>(language));
    if (ticked) {
      throw CommandFailed("--languages: " + given + " is given twice");
    }
    ticked = true;
  }
  if (languages.size() != set.LangCount) {
    throw CommandFailed("--languages: the board has " + std::to_string(set.LangCount) +
                        " language slots, " + std::to_string(languages.size()) +
                        " languages are chosen");
  }
}

// The copy is asked for late; what cannot be written is refused before.
void CheckCopy(const Session& session, const CompileOptions& options) {
  session.engine.compiler.CheckOutputs(
      {WithDefaultExtension(options.output, FlashExtension(session.set())),
       WithDefaultExtension(options.copy, "MSX")});
}

// Lines of a .MSX file reach the board as they are, damaged ones too.
std::vector<std::string> WarningsOf(const std::string& file, const CompileOutcome& outcome) {
  std::vector<std::string> warnings;
  for (const auto& [line, damage] : outcome.damaged_records) {
    warnings.push_back(fmt::format("{}: line {}: {}", file, line, damage));
  }
  for (const auto& [number, name] : outcome.short_languages) {
    warnings.push_back(
        fmt::format("{}: language {} ({}) ends before its last message; 0 stands for the rest",
                    file, number, name));
  }
  return warnings;
}

std::string Report(const CompileOutcome& outcome) {
  std::string text;
  for (const auto& path : outcome.written) {
    text += PathText(path) + "\n";
  }
  return text;
}

Json AsJson(const Session& session, const CompileOutcome& outcome,
            const std::vector<std::string>& warnings) {
  Json written = Json::array();
  for (const auto& path : outcome.written) {
    written.push_back(PathText(path));
  }
  return {{"written", written},
          {"messages", session.MessagesAsJson()},
          {"warnings", warnings},
          {"completed", outcome.completed}};
}

void TakeOptions(Session& session, const CompileOptions& options) {
  if (!session.set().IsMes()) {
    return;
  }
  if (options.languages.empty()) {
    throw WrongUsage("--languages is required for a .MES file");
  }
  const bool asks_for_copy = session.set().LangCount == kMsxLanguages;
  if (asks_for_copy && options.copy.empty()) {
    throw WrongUsage("--copy is required: the board has 9 language slots");
  }
  TickLanguages(session, options.languages);
  if (asks_for_copy) {
    CheckCopy(session, options);
  }
}

void RunCompile(Session& session, const CompileOptions& options) {
  session.Open(options.file);
  TakeOptions(session, options);
  session.dialogs.files[FilePurpose::kFlashFile] = options.output;
  session.dialogs.files[FilePurpose::kIdentifiedCopy] = options.copy;
  const CompileOutcome outcome = session.engine.compiler.Compile();
  const std::vector<std::string> warnings = WarningsOf(options.file, outcome);
  for (const std::string& warning : warnings) {
    std::cerr << "vendlingua-cli: warning: " << warning << '\n';
  }
  session.Print(AsJson(session, outcome, warnings), Report(outcome));
  if (!outcome.completed) {
    throw CommandFailed(options.output + ": the compilation stopped before its end");
  }
}

}  // namespace

void AddCompile(CLI::App& app, Session& session) {
  const auto options = std::make_shared<CompileOptions>();
  CLI::App* command = app.add_subcommand("compile", "Compile languages into flash files.");
  command->footer(
      "A board with .SDATA memory takes .MHX files, any other .hex files.\n"
      "Example: vendlingua-cli compile FW0417AB.MES --languages 1,2,3,4,5,6,7,8,9 "
      "--output FW0417AB.MHX --copy MP0417AA.MSX");
  AddFile(*command, options->file);
  command
      ->add_option(
          "--languages", options->languages,
          "numbers or names of the languages, as many as the board has slots; not for .MSX files")
      ->type_name("LANGUAGE")
      ->delimiter(',')
      ->allow_extra_args(false);
  command->add_option("--output", options->output, "flash file to write")
      ->required()
      ->type_name("FILE");
  command
      ->add_option("--copy", options->copy,
                   "identified copy to write (.MSX), for boards with 9 slots")
      ->type_name("FILE");
  command->callback([&session, options] { RunCompile(session, *options); });
}

}  // namespace vendlingua::cli
