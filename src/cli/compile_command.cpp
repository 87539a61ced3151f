#include <algorithm>
#include <system_error>

#include "cli/commands.h"
#include "core/formats/copy_header.h"
#include "core/formats/srecord.h"
#include "core/formats/text_lines.h"
#include "core/platform/errors.h"
#include "core/platform/files.h"

namespace vendlingua::cli {
namespace {

namespace fs = std::filesystem;

// A copy of so many languages is a message file of its own and needs a name.
constexpr int kLanguagesWithCopyOption = 9;

void TickLanguages(Session& session, std::vector<int> languages) {
  MessageSet& set = session.set();
  std::sort(languages.begin(), languages.end());
  CompilerState& compiler = session.engine.compiler_state;
  for (const int language : languages) {
    session.LanguageName(language);
    if (language == 0) {
      throw CommandFailed("--languages: language 0 is the reference and is not compiled");
    }
    bool& ticked = compiler.ticked.at(static_cast<std::size_t>(language));
    if (ticked) {
      throw CommandFailed("--languages: " + std::to_string(language) + " is given twice");
    }
    ticked = true;
  }
  if (languages.size() != set.LangCount) {
    throw CommandFailed("--languages: the board has " + std::to_string(set.LangCount) +
                        " language slots, " + std::to_string(languages.size()) +
                        " languages are chosen");
  }
}

// The copy is asked for when the flash file is written already; what cannot be is refused before.
void CheckCopy(const CompileOptions& options) {
  const fs::path copy = WithDefaultExtension(options.copy, "MSX");
  RefuseToOverwrite(options.file, copy);
  std::error_code not_there;
  const fs::path folder = copy.has_parent_path() ? copy.parent_path() : fs::path(".");
  if (!fs::is_directory(folder, not_there) || fs::is_directory(copy, not_there)) {
    throw CommandFailed(PathText(copy) + ": cannot be created there");
  }
  const fs::path flash_file = WithDefaultExtension(options.output, "MHX");
  if (fs::weakly_canonical(fs::absolute(copy), not_there) ==
      fs::weakly_canonical(fs::absolute(flash_file), not_there)) {
    throw CommandFailed(PathText(copy) + ": is the flash file; give another --copy");
  }
}

// Lines of a .MSX file reach the board as they are: a damaged one must not.
void CheckRecords(const std::string& file) {
  const std::string content = ReadFile(file);
  TextLines lines(content);
  lines.Next();
  SRecord record;
  while (const auto line = lines.Next()) {
    try {
      if (!line->text.empty() && line->text != kLastCopyLine) {
        ParseSRecord(line->text, record);
      }
    } catch (const SRecordSyntaxError& error) {
      throw CommandFailed(file + ": line " + std::to_string(lines.count()) + ": " + error.what() +
                          "; nothing was written");
    }
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
    if (session.set().LangCount == kLanguagesWithCopyOption) {
      CheckCopy(options);
    }
  } else {
    CheckRecords(options.file);
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
