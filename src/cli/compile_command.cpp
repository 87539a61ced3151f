#include <algorithm>

#include "cli/commands.h"
#include "flash/language_selection.h"
#include "platform/errors.h"

namespace vendlingua::cli {
namespace {

// A copy of so many languages is a message file of its own and needs a name.
constexpr int kLanguagesWithCopyOption = 9;

struct CompileOptions {
  std::string file;
  std::vector<int> languages;
  std::string output;
  std::string copy;
};

void TickLanguages(Session& session, std::vector<int> languages) {
  MessageSet& set = session.set();
  std::sort(languages.begin(), languages.end());
  CompilerState& compiler = session.engine.compiler_state;
  LoadEntries(session.engine.workspace, compiler);
  for (const int language : languages) {
    session.LanguageName(language);
    if (language == 0) {
      throw CommandFailed("--languages: language 0 is the reference and is not compiled");
    }
    CompilerState::Entry& entry = compiler.Check1[static_cast<std::size_t>(language)];
    if (entry.ticked) {
      throw CommandFailed("--languages: " + std::to_string(language) + " is given twice");
    }
    entry.ticked = true;
  }
  if (languages.size() != set.LangCount) {
    throw CommandFailed("--languages: the board has " + std::to_string(set.LangCount) +
                        " language slots, " + std::to_string(languages.size()) +
                        " languages are chosen");
  }
}

std::string Report(const CompileOutcome& outcome) {
  std::string text;
  for (const auto& path : outcome.written) {
    text += PathText(path) + "\n";
  }
  return text;
}

Json AsJson(const Session& session, const CompileOutcome& outcome) {
  Json written = Json::array();
  for (const auto& path : outcome.written) {
    written.push_back(PathText(path));
  }
  return {{"written", written},
          {"messages", session.MessagesAsJson()},
          {"completed", outcome.completed}};
}

void Run(Session& session, const CompileOptions& options) {
  session.Open(options.file);
  if (session.set().IsMes()) {
    if (options.languages.empty()) {
      throw CLI::RequiredError("--languages");
    }
    if (session.set().LangCount == kLanguagesWithCopyOption && options.copy.empty()) {
      throw CLI::RequiredError("--copy (the board has 9 language slots)");
    }
    TickLanguages(session, options.languages);
  }
  session.dialogs.files[FilePurpose::kFlashFile] = options.output;
  session.dialogs.files[FilePurpose::kIdentifiedCopy] = options.copy;
  const CompileOutcome outcome = session.engine.compiler.Compile();
  session.Print(AsJson(session, outcome), Report(outcome));
  if (!outcome.completed) {
    throw CommandFailed(options.output + ": the compilation stopped before its end");
  }
}

}  // namespace

void AddCompileCommand(CLI::App& app, Session& session) {
  const auto options = std::make_shared<CompileOptions>();
  CLI::App* command = app.add_subcommand("compile", "Compile languages into flash files.");
  command->footer(
      "A board with .SDATA memory takes .MHX files, any other .hex files.\n"
      "Example: vendlingua-cli compile FW0417AB.MES --languages 1,2,3,4,5,6,7,8,9 "
      "--output FW0417AB.MHX --copy MP0417AA.MSX");
  command->add_option("FILE", options->file, "message file (.MES or .MSX)")->required();
  command
      ->add_option("--languages", options->languages,
                   "numbers of the languages, as many as the board has slots; not for .MSX files")
      ->delimiter(',');
  command->add_option("--output", options->output, "flash file to write")->required();
  command->add_option("--copy", options->copy,
                      "identified copy to write (.MSX), for boards with 9 slots");
  command->callback([&session, options] { Run(session, *options); });
}

}  // namespace vendlingua::cli
