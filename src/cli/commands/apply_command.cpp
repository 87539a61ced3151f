#include <charconv>
#include <iostream>
#include <memory>
#include <set>
#include <string>
#include <system_error>

#include "cli/commands.h"
#include "cli/csv_table.h"
#include "cli/options.h"
#include "core/platform/files.h"

namespace vendlingua::cli {
namespace {

struct ApplyOptions {
  std::string file;
  std::string language;
  std::string table;
};

struct Edit {
  int message;
  DisplayCodes text;
};

// Checks a table row by row; what is wrong is collected, so that a translator sees it all at once.
class TableReader {
 public:
  TableReader(Session& session, std::string file)
      : session_(session), set_(session.set()), file_(std::move(file)) {}

  std::vector<Edit> Read() {
    const std::vector<CsvRow> rows = ParseCsv(file_, ReadFile(file_));
    if (rows.empty() || rows.front() != CsvHeader()) {
      throw CommandFailed(file_ + ": the first row must be message,origin,text");
    }
    std::vector<Edit> edits;
    for (row_ = 2; row_ <= rows.size(); ++row_) {
      if (auto edit = ReadRow(rows[row_ - 1])) {
        edits.push_back(std::move(*edit));
      }
    }
    if (!problems_.empty()) {
      throw CommandFailed(problems_ + file_ + ": nothing was changed");
    }
    return edits;
  }

 private:
  std::optional<Edit> ReadRow(const CsvRow& row) {
    if (row.size() != CsvHeader().size()) {
      return Refuse("has " + std::to_string(row.size()) + " fields instead of 3");
    }
    const std::string& number = row[0];
    Edit edit{0, {}};
    const char* end = number.data() + number.size();
    const auto parsed = std::from_chars(number.data(), end, edit.message);
    if (parsed.ec != std::errc() || parsed.ptr != end || edit.message < 0 ||
        edit.message > set_.LastMsg) {
      return Refuse("there is no message \"" + number + "\"");
    }
    if (!seen_.insert(edit.message).second) {
      return Refuse("message " + number + " stands in a row before");
    }
    const DrawnText drawn = session_.alphabet().CodesOf(row[2]);
    if (!drawn.unknown.empty()) {
      return Refuse("message " + number + ": " + NotDrawn(row[2], drawn.unknown));
    }
    const auto text = TrimRight(drawn.codes);
    if (text.size() > set_.Width()) {
      return Refuse("message " + number + ": \"" + row[2] + "\" has " +
                    std::to_string(text.size()) + " cells, at most " +
                    std::to_string(set_.Width()) + " fit");
    }
    edit.text.assign(text.begin(), text.end());
    return edit;
  }

  std::nullopt_t Refuse(const std::string& reason) {
    problems_ += file_ + ", row " + std::to_string(row_) + ": " + reason + "\n";
    return std::nullopt;
  }

  const Session& session_;
  const MessageSet& set_;
  std::string file_;
  std::size_t row_ = 0;
  std::set<int> seen_;
  std::string problems_;
};

void RunApply(Session& session, const ApplyOptions& options) {
  session.Open(options.file);
  const std::vector<Edit> edits = TableReader(session, options.table).Read();
  const int language = session.FindLanguage(options.language);
  session.OpenDestination(language, edits.empty() ? 0 : edits.front().message);
  for (const Edit& edit : edits) {
    session.set().SetText(static_cast<std::size_t>(edit.message), edit.text);
  }
  if (!edits.empty()) {
    session.Save();
  }
  session.Print({{"file", options.file},
                 {"language", language},
                 {"applied", edits.size()},
                 {"messages", session.MessagesAsJson()}},
                std::to_string(edits.size()) + " messages applied\n");
}

}  // namespace

void AddApply(CLI::App& app, Session& session) {
  const auto options = std::make_shared<ApplyOptions>();
  CLI::App* command =
      app.add_subcommand("apply", "Take the texts of a table into a language and save the file.");
  command->footer(
      "A text that is too long or holds a character without a display code refuses the table.\n"
      "Example: vendlingua-cli apply FW0417AB.MES --language 2 english.csv");
  AddFile(*command, options->file);
  AddLanguage(*command, options->language);
  AddDisplay(*command, session);
  command->add_option("TABLE", options->table, "table as \"export\" writes it")->required();
  command->callback([&session, options] { RunApply(session, *options); });
}

}  // namespace vendlingua::cli
