#include "cli/commands.h"
#include "cli/csv_table.h"
#include "platform/files.h"

namespace vendlingua::cli {
namespace {

struct ExportOptions {
  std::string file;
  int language = 0;
  int origin = 0;
  std::string output;
};

void Run(Session& session, const ExportOptions& options) {
  session.Open(options.file);
  session.LanguageName(options.language);
  session.LanguageName(options.origin);
  const MessageSet& set = session.set();
  session.engine.languages.ChooseOrigin(options.language);
  const auto texts = set.OriginText;
  session.engine.languages.ChooseOrigin(options.origin);
  std::string table;
  AppendCsvRow(CsvHeader(), table);
  for (std::size_t i = 0; i < set.MessageCount(); ++i) {
    AppendCsvRow({std::to_string(i), ToUtf8(set.OriginText[i].First(set.Width())),
                  ToUtf8(texts[i].First(set.Width()))},
                 table);
  }
  WriteFile(options.output, table);
  session.Print({{"written", {options.output}}, {"messages", session.MessagesAsJson()}},
                options.output + "\n");
}

}  // namespace

void AddExportCommand(CLI::App& app, Session& session) {
  const auto options = std::make_shared<ExportOptions>();
  CLI::App* command =
      app.add_subcommand("export", "Write the messages of a language as comma-separated values.");
  command->footer(
      "Columns: message, origin, text; UTF-8. \"apply\" takes the edited table back.\n"
      "Example: vendlingua-cli export FW0417AB.MES --language 2 --output english.csv");
  command->add_option("FILE", options->file, "message file (.MES or .MSX)")->required();
  command->add_option("--language", options->language, "number of the language")->required();
  command->add_option("--origin", options->origin, "number of the origin language, 0 if not given");
  command->add_option("--output", options->output, "table to write")->required();
  command->callback([&session, options] { Run(session, *options); });
}

}  // namespace vendlingua::cli
