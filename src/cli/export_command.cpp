#include "cli/commands.h"
#include "cli/csv_table.h"
#include "core/formats/message_texts.h"
#include "core/platform/files.h"

namespace vendlingua::cli {

void RunExport(Session& session, const ExportOptions& options) {
  session.Open(options.file);
  RefuseToOverwrite(options.file, options.output);
  session.LanguageName(options.language);
  session.LanguageName(options.origin);
  const MessageSet& set = session.set();
  const MessageTexts texts = TextsOf(set, options.language);
  const MessageTexts origin = TextsOf(set, options.origin);
  std::string table;
  AppendCsvRow(CsvHeader(), table);
  for (std::size_t i = 0; i < set.MessageCount(); ++i) {
    AppendCsvRow({std::to_string(i), ToUtf8(origin[i].First(set.Width())),
                  ToUtf8(texts[i].First(set.Width()))},
                 table);
  }
  WriteFile(options.output, table);
  session.Print({{"written", {options.output}}, {"messages", session.MessagesAsJson()}},
                options.output + "\n");
}

}  // namespace vendlingua::cli
