#include "cli/commands.h"
#include "core/platform/errors.h"

namespace vendlingua::cli {
namespace {

// Entry 0 of the menu starts blank; its texts as a start are copied message by message.
void CopyReference(MessageSet& set) {
  for (std::size_t message = 0; message < set.MessageCount(); ++message) {
    set.SetText(message, set.OriginText[message].First(set.Width()));
  }
}

}  // namespace

void RunNewLanguage(Session& session, const NewLanguageOptions& options) {
  session.Open(options.file);
  if (!session.set().IsMes()) {
    throw CommandFailed(options.file + ": a .MSX file cannot take a new language");
  }
  const int from = options.from.value_or(0);
  session.LanguageName(from);
  session.engine.languages.ChooseOrigin(0);
  if (session.engine.languages.StartNewLanguage(from) != DestinationOutcome::kOpened) {
    throw CommandFailed(options.file + ": no new language was started");
  }
  if (options.from == 0) {
    CopyReference(session.set());
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

}  // namespace vendlingua::cli
