#include <memory>
#include <string>

#include "cli/commands.h"
#include "cli/options.h"
#include "core/platform/errors.h"
#include "core/platform/path_of.h"

namespace vendlingua::cli {
namespace {

struct NewLanguageOptions {
  std::string file;
  std::optional<std::string> from;  ///< nothing: blank texts
  std::string name;
};

// Entry 0 of the menu starts blank; its texts as a start are copied message by message.
void CopyReference(MessageSet& set) {
  for (std::size_t message = 0; message < set.MessageCount(); ++message) {
    set.SetText(message, set.OriginText[message].First(set.Width()));
  }
}

void RunNewLanguage(Session& session, const NewLanguageOptions& options) {
  session.Open(options.file);
  if (!session.set().IsMes()) {
    throw CommandFailed(options.file + ": a .MSX file cannot take a new language");
  }
  if (session.set().IsFull()) {
    throw FileError(PathOf(options.file), UiTextId::kFileHolds100Languages);
  }
  RequireName(session.set(), kNewLanguage, options.name);
  const int from = session.FindLanguage(options.from.value_or("0"));
  WarnIfItEndsEarly(session.set(), from);
  session.engine.languages.ChooseOrigin(0);
  session.engine.languages.StartNewLanguage(from);
  if (options.from && from == 0) {
    CopyReference(session.set());
  }
  session.dialogs.inputs[InputPurpose::kNewLanguageName] = {options.name};
  session.Save();
  const int language = session.set().DestLang;
  const std::string& name = session.LanguageName(language);
  session.Print({{"file", options.file},
                 {"language", language},
                 {"name", name},
                 {"notices", session.Notices()}},
                "language " + std::to_string(language) + ": " + name + "\n");
}

}  // namespace

void AddNewLanguage(CLI::App& app, Session& session) {
  const auto options = std::make_shared<NewLanguageOptions>();
  CLI::App* command = app.add_subcommand("new-language", "Add a language to a .MES file.");
  command->footer("Example: vendlingua-cli new-language FW0417AB.MES --from 1 --name POLSKI");
  command->add_option("FILE", options->file, "message file (.MES)")->required();
  command
      ->add_option("--from", options->from,
                   "start from the texts of this language instead of blank ones")
      ->type_name("LANGUAGE");
  command->add_option("--name", options->name, "name of the new language, at most 20 characters")
      ->required()
      ->type_name("NAME");
  command->callback([&session, options] { RunNewLanguage(session, *options); });
}

}  // namespace vendlingua::cli
