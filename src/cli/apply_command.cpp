#include <charconv>
#include <iostream>
#include <set>
#include <system_error>

#include "cli/commands.h"
#include "cli/csv_table.h"
#include "core/platform/files.h"

namespace vendlingua::cli {
namespace {

struct Edit {
  int message;
  DisplayCodes text;
};

// Checks a table row by row; what is wrong is collected, so that a translator sees it all at once.
class TableReader {
 public:
  TableReader(const MessageSet& set, std::string file) : set_(set), file_(std::move(file)) {}

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
    const CodesFromUtf8 converted = ToDisplayCodes(row[2]);
    if (converted.unknown) {
      return Refuse("message " + number + ": the display does not have the character \"" +
                    *converted.unknown + "\" of \"" + row[2] + "\"");
    }
    const auto text = TrimRight(converted.codes);
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

  const MessageSet& set_;
  std::string file_;
  std::size_t row_ = 0;
  std::set<int> seen_;
  std::string problems_;
};

}  // namespace

void RunApply(Session& session, const ApplyOptions& options) {
  session.Open(options.file);
  const std::vector<Edit> edits = TableReader(session.set(), options.table).Read();
  session.OpenDestination(options.language, edits.empty() ? 0 : edits.front().message);
  for (const Edit& edit : edits) {
    session.set().SetText(static_cast<std::size_t>(edit.message), edit.text);
  }
  if (!edits.empty()) {
    session.Save();
  }
  session.Print({{"file", options.file},
                 {"language", options.language},
                 {"applied", edits.size()},
                 {"messages", session.MessagesAsJson()}},
                std::to_string(edits.size()) + " messages applied\n");
}

}  // namespace vendlingua::cli
