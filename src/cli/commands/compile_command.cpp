#include <fmt/format.h>

#include <algorithm>
#include <memory>
#include <string>

#include "cli/commands.h"
#include "cli/options.h"
#include "core/platform/errors.h"
#include "core/platform/path_of.h"

namespace vendlingua::cli {
namespace {

struct CompileOptions {
  std::string file;
  std::vector<std::string> languages;
  std::string output;
  std::string copy;
};

std::vector<int> LanguagesToCompile(const Session& session, const CompileOptions& options) {
  std::vector<int> languages;
  for (const std::string& given : options.languages) {
    const int language = session.FindLanguage(given);
    if (language == 0) {
      throw CommandFailed(options.file + ": language 0 is the reference and is not compiled");
    }
    if (std::find(languages.begin(), languages.end(), language) != languages.end()) {
      throw CommandFailed(fmt::format("{}: language {} is given twice", options.file, given));
    }
    languages.push_back(language);
  }
  const std::size_t slots = session.set().LangCount;
  if (languages.size() != slots) {
    throw CommandFailed(fmt::format("{}: the board has {} language slots, {} languages are given",
                                    options.file, slots, languages.size()));
  }
  return languages;
}

// Languages go into the slots as they are ticked in a list. Returns what has to be said about that.
std::vector<std::string> TickLanguages(Session& session, const CompileOptions& options) {
  std::vector<int> languages = LanguagesToCompile(session, options);
  for (const int language : languages) {
    session.engine.compiler_state.ticked.at(static_cast<std::size_t>(language)) = true;
  }
  if (std::is_sorted(languages.begin(), languages.end())) {
    return {};
  }
  std::sort(languages.begin(), languages.end());
  return {fmt::format("{}: the order in the file counts: the slots hold the languages {}",
                      options.file, fmt::join(languages, ", "))};
}

// The copy is asked for late; what cannot be written is refused before.
void CheckCopy(const Session& session, const CompileOptions& options) {
  session.engine.compiler.CheckOutputs(
      {WithDefaultExtension(PathOf(options.output), FlashExtension(session.set())),
       WithDefaultExtension(PathOf(options.copy), "MSX")});
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
          {"notices", session.Notices()},
          {"warnings", warnings},
          {"completed", outcome.completed}};
}

void RefuseOptionsOfMesFiles(const CompileOptions& options) {
  if (!options.languages.empty()) {
    throw WrongUsage("--languages is not for a .MSX file, which is compiled as it is");
  }
  if (!options.copy.empty()) {
    throw WrongUsage("--copy is not for a .MSX file, which is the identified copy itself");
  }
}

void RequireOptionsOfMesFile(const Session& session, const CompileOptions& options) {
  if (options.languages.empty()) {
    throw WrongUsage("--languages is required for a .MES file");
  }
  const std::size_t slots = session.set().LangCount;
  const bool asks_for_copy = slots == std::size_t{kMsxLanguages};
  if (asks_for_copy && options.copy.empty()) {
    throw WrongUsage("--copy is required: the board has 9 language slots");
  }
  if (!asks_for_copy && !options.copy.empty()) {
    throw WrongUsage(
        fmt::format("--copy is for boards with 9 language slots, not {}; the copy is named after "
                    "the flash file",
                    slots));
  }
}

// Returns the warnings.
std::vector<std::string> TakeOptions(Session& session, const CompileOptions& options) {
  session.dialogs.files[FilePurpose::kFlashFile] = PathOf(options.output);
  session.dialogs.files[FilePurpose::kIdentifiedCopy] = PathOf(options.copy);
  if (session.set().IsMsx()) {
    RefuseOptionsOfMesFiles(options);
    return {};
  }
  RequireOptionsOfMesFile(session, options);
  std::vector<std::string> warnings = TickLanguages(session, options);
  if (!options.copy.empty()) {
    CheckCopy(session, options);
  }
  return warnings;
}

void RunCompile(Session& session, const CompileOptions& options) {
  session.Open(options.file);
  std::vector<std::string> warnings = TakeOptions(session, options);
  const CompileOutcome outcome = session.engine.compiler.Compile();
  const std::vector<std::string> damages = WarningsOf(options.file, outcome);
  warnings.insert(warnings.end(), damages.begin(), damages.end());
  for (const std::string& warning : warnings) {
    Session::Warn(warning);
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
          "numbers or names of the languages, as many as the board has slots, in the order of the "
          "file; not for .MSX files")
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
