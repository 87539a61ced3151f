#include "cli/commands.h"
#include "platform/errors.h"

namespace vendlingua::cli {
namespace {

struct NewLanguageOptions {
  std::string file;
  int from = 0;
  bool has_from = false;
  std::string name;
};

// Entry 0 of the menu starts blank; its texts as a start are copied message by message.
void CopyReference(Session& session) {
  for (int message = 0; message <= session.set().LastMsg; ++message) {
    session.engine.view.Scroll(message);
    session.engine.view.CopyOrigin();
  }
}

void Run(Session& session, const NewLanguageOptions& options) {
  session.Open(options.file);
  if (!session.set().IsMes()) {
    throw CommandFailed(options.file + ": a .MSX file cannot take a new language");
  }
  session.LanguageName(options.from);
  session.engine.languages.ChooseOrigin(0);
  session.engine.languages.StartNewLanguage(options.from);
  if (session.set().Modified == kFalse) {
    throw CommandFailed(options.file + ": no new language was started");
  }
  if (options.has_from && options.from == 0) {
    CopyReference(session);
  }
  session.dialogs.inputs[InputPurpose::kNewLanguageName] = {options.name};
  session.Save();
  const int language = session.set().DestLang;
  const std::string& name = session.LanguageName(language);
  session.Print({{"file", options.file},
                 {"language", language},
                 {"name", name},
                 {"messages", session.MessagesAsJson()}},
                "language " + std::to_string(language) + ": " + name + "\n");
}

}  // namespace

void AddNewLanguageCommand(CLI::App& app, Session& session) {
  const auto options = std::make_shared<NewLanguageOptions>();
  CLI::App* command = app.add_subcommand("new-language", "Add a language to a .MES file.");
  command->footer("Example: vendlingua-cli new-language FW0417AB.MES --from 1 --name POLSKI");
  command->add_option("FILE", options->file, "message file (.MES)")->required();
  auto* from = command->add_option("--from", options->from,
                                   "start from the texts of this language instead of blank ones");
  command->add_option("--name", options->name, "name of the new language, at most 20 characters")
      ->required();
  command->callback([&session, options, from] {
    options->has_from = from->count() != 0;
    Run(session, *options);
  });
}

}  // namespace vendlingua::cli
