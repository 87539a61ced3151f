#include <algorithm>
#include <memory>
#include <string>

#include "cli/carry_report.h"
#include "cli/commands.h"
#include "cli/options.h"
#include "core/formats/message_file.h"
#include "core/platform/errors.h"
#include "core/platform/path_of.h"
#include "core/transfer/carried_texts.h"

namespace vendlingua::cli {
namespace {

struct PretranslateOptions {
  std::string file;
  std::string language;
  std::string from;
  std::string from_language;  ///< empty: the one of the same name
  std::string reference = "1";
  std::string report;
};

// Codes mean other characters on another display.
void RequireOneDisplay(const Session& session, const MessageSet& older) {
  const MessageSet& set = session.set();
  if (!session.display && set.DisplayType != older.DisplayType) {
    throw CommandFailed(PathText(older.CurrentFileName) + ": is for display type " +
                        std::to_string(older.DisplayType) + ", " + PathText(set.CurrentFileName) +
                        " for type " + std::to_string(set.DisplayType) +
                        "; give the --display that both are for");
  }
}

std::vector<CarriedMessage> Plan(const Session& session, const MessageSet& older, int language,
                                 const PretranslateOptions& options) {
  const MessageSet& set = session.set();
  const int from_language =
      FindLanguage(older, options.from_language.empty() ? session.LanguageName(language)
                                                        : options.from_language);
  WarnIfItEndsEarly(older, from_language);
  return Pretranslate(
      {.width = set.Width(),
       .origin = TextsToCarry(set, 0),
       .reference = TextsToCarry(set, session.FindLanguage(options.reference)),
       .older_reference = TextsToCarry(older, FindLanguage(older, options.reference)),
       .older_texts = TextsToCarry(older, from_language)},
      TextsToCarry(set, language));
}

bool IsChanged(const CarriedMessage& message) {
  return message.result == CarryResult::kFilled || message.result == CarryResult::kAdapted;
}

void Store(Session& session, int language, const std::vector<CarriedMessage>& messages) {
  const auto first = std::find_if(messages.begin(), messages.end(), IsChanged);
  if (first == messages.end()) {
    return;
  }
  session.OpenDestination(language, static_cast<int>(first - messages.begin()));
  MessageSet& set = session.set();
  for (std::size_t i = 0; i < messages.size(); ++i) {
    if (IsChanged(messages[i])) {
      set.SetText(i, CellsToStore(set, messages[i].text));
    }
  }
  session.Save();
}

void RunPretranslate(Session& session, const PretranslateOptions& options) {
  RefuseTableInPlaceOf({PathOf(options.file), PathOf(options.from)}, options.report);
  session.Open(options.file);
  const MessageSet older = ReadMessageFile(PathOf(options.from));
  RequireOneDisplay(session, older);
  const int language = session.FindLanguage(options.language);
  session.RequireDestination(language);
  const std::vector<CarriedMessage> messages = Plan(session, older, language, options);
  CarryReport report(session.alphabet(), older.Width());
  report.Add(language, session.LanguageName(language), messages);
  report.WriteTable(options.report);
  Store(session, language, messages);
  session.Print({{"file", options.file},
                 {"language", language},
                 {"messages", report.messages()},
                 {"counts", report.counts()},
                 {"notices", session.Notices()}},
                report.text());
}

}  // namespace

void AddPretranslate(CLI::App& app, Session& session) {
  const auto options = std::make_shared<PretranslateOptions>();
  CLI::App* command = app.add_subcommand(
      "pretranslate", "Fill the messages of a language from an older message file.");
  command->footer(
      "Messages that are blank or read like the origin take the translation of the same text.\n"
      "What is merely similar is listed as a suggestion and never stored.\n"
      "Example: vendlingua-cli pretranslate FW0417AB.MES --language 2 --from FW0267AA.MES "
      "--report report.csv");
  AddFile(*command, options->file);
  AddLanguage(*command, options->language);
  command->add_option("--from", options->from, "older message file")->required();
  command
      ->add_option("--from-language", options->from_language,
                   "number or name of the language there, that of the same name if not given")
      ->type_name("LANGUAGE");
  command
      ->add_option("--reference", options->reference,
                   "number or name of the language whose texts tell what is the same, 1 if not "
                   "given")
      ->type_name("LANGUAGE");
  AddDisplay(*command, session);
  command->add_option("--report", options->report, "table to write with a row a message");
  command->callback([&session, options] { RunPretranslate(session, *options); });
}

}  // namespace vendlingua::cli
