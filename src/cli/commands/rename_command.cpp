#include <memory>
#include <string>

#include "cli/commands.h"
#include "cli/options.h"
#include "core/operations/rename_language.h"
#include "core/operations/taken_names.h"

namespace vendlingua::cli {
namespace {

struct RenameOptions {
  std::string file;
  std::string language;
  std::string name;
};

void RunRename(Session& session, const RenameOptions& options) {
  session.Open(options.file);
  const MessageSet& set = session.set();
  if (!set.IsMes()) {
    throw CommandFailed(options.file +
                        ": in a .MSX file a message names the language; change that one");
  }
  const int language = session.FindLanguage(options.language);
  if (language == 0) {
    throw CommandFailed(options.file + ": language 0 is the reference and keeps its name");
  }
  const NameField name = RequireName(set, language, options.name);
  RenameLanguage(session.engine.workspace, session.dialogs, language, name);
  session.Print({{"file", options.file}, {"language", language}, {"name", name.Caption()}},
                "language " + std::to_string(language) + ": " + name.Caption() + "\n");
}

}  // namespace

void AddRename(CLI::App& app, Session& session) {
  const auto options = std::make_shared<RenameOptions>();
  CLI::App* command = app.add_subcommand("rename", "Give a language of a .MES file another name.");
  command->footer("Example: vendlingua-cli rename FW0417AB.MES --language 2 --name \"ENGLISH UK\"");
  command->add_option("FILE", options->file, "message file (.MES)")->required();
  AddLanguage(*command, options->language);
  command->add_option("--name", options->name, "its new name, at most 20 characters")
      ->required()
      ->type_name("NAME");
  command->callback([&session, options] { RunRename(session, *options); });
}

}  // namespace vendlingua::cli
