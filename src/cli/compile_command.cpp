#include <algorithm>

#include "cli/commands.h"
#include "flash/language_selection.h"
#include "platform/errors.h"

namespace vendlingua::cli {
namespace {

// A copy of so many languages is a message file of its own and needs a name.
constexpr int kLanguagesWithCopyOption = 9;

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

}  // namespace

void RunCompile(Session& session, const CompileOptions& options) {
  session.Open(options.file);
  if (session.set().IsMes()) {
    if (options.languages.empty()) {
      throw WrongUsage("--languages is required for a .MES file");
    }
    if (session.set().LangCount == kLanguagesWithCopyOption && options.copy.empty()) {
      throw WrongUsage("--copy is required: the board has 9 language slots");
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

}  // namespace vendlingua::cli
