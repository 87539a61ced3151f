#include <memory>
#include <string>

#include "cli/commands.h"
#include "cli/csv_table.h"
#include "cli/options.h"
#include "core/formats/message_texts.h"
#include "core/platform/files.h"

namespace vendlingua::cli {

namespace {

struct ExportOptions {
  std::string file;
  std::string language;
  std::string origin = "0";
  std::string output;
};

void RunExport(Session& session, const ExportOptions& options) {
  session.Open(options.file);
  RefuseToOverwrite(options.file, options.output);
  const MessageSet& set = session.set();
  const MessageTexts texts = TextsOf(set, session.FindLanguage(options.language));
  const MessageTexts origin = TextsOf(set, session.FindLanguage(options.origin));
  const Alphabet& alphabet = session.alphabet();
  std::string table;
  AppendCsvRow(CsvHeader(), table);
  for (std::size_t i = 0; i < set.MessageCount(); ++i) {
    AppendCsvRow({std::to_string(i), alphabet.TextOf(origin[i].First(set.Width())),
                  alphabet.TextOf(texts[i].First(set.Width()))},
                 table);
  }
  WriteFile(options.output, table);
  session.Print({{"written", {options.output}}, {"messages", session.MessagesAsJson()}},
                options.output + "\n");
}

}  // namespace

void AddExport(CLI::App& app, Session& session) {
  const auto options = std::make_shared<ExportOptions>();
  CLI::App* command =
      app.add_subcommand("export", "Write the messages of a language as comma-separated values.");
  command->footer(
      "Columns: message, origin, text; UTF-8. \"apply\" takes the edited table back.\n"
      "Example: vendlingua-cli export FW0417AB.MES --language 2 --output english.csv");
  AddFile(*command, options->file);
  AddLanguage(*command, options->language);
  command->add_option("--origin", options->origin,
                      "number or name of the origin language, 0 if not given");
  AddDisplay(*command, session);
  command->add_option("--output", options->output, "table to write")->required();
  command->callback([&session, options] { RunExport(session, *options); });
}

}  // namespace vendlingua::cli
