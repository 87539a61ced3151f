#include <fmt/format.h>

#include <algorithm>
#include <memory>
#include <string>

#include "cli/characters.h"
#include "cli/checked_file.h"
#include "cli/commands.h"
#include "cli/options.h"
#include "core/checks/statistics.h"

namespace vendlingua::cli {
namespace {

struct StatsOptions {
  std::string file;
  std::string origin;
};

Json Row(const Session& session, const CheckedFile& file, int language) {
  const LanguageStatistics statistics = StatisticsOf(file.basis(), file.TextsOf(language));
  const std::vector<Finding> findings = file.CheckOf(language).Findings();
  return {{"index", language},
          {"name", session.LanguageName(language)},
          {"messages", file.basis().MessageCount()},
          {"translated", statistics.translated},
          {"same", statistics.same},
          {"blank", statistics.blank},
          {"findings", findings.size() - CountOf(findings, Severity::kNote)}};
}

std::string AsLines(const Json& rows) {
  std::size_t name_width = 0;
  for (const Json& row : rows) {
    name_width = std::max(name_width, Characters(row["name"].get<std::string>()));
  }
  std::string lines;
  for (const Json& row : rows) {
    lines += fmt::format("{:>2} {:{}}", row["index"].get<int>(), row["name"].get<std::string>(),
                         name_width);
    for (const char* key : {"messages", "translated", "same", "blank", "findings"}) {
      lines += fmt::format("  {} {:>3}", key, row[key].get<std::size_t>());
    }
    lines += "\n";
  }
  return lines;
}

void RunStats(Session& session, const StatsOptions& options) {
  session.Open(options.file);
  const CheckedFile file(session, options.origin);
  Json rows = Json::array();
  for (const int language : file.Languages()) {
    rows.push_back(Row(session, file, language));
  }
  session.Print({{"languages", rows}}, AsLines(rows));
}

}  // namespace

void AddStats(CLI::App& app, Session& session) {
  const auto options = std::make_shared<StatsOptions>();
  CLI::App* command = app.add_subcommand("stats", "Count what is translated, a line a language.");
  command->footer(
      "same: says what the origin says. blank: nothing where the origin says something.\n"
      "findings: errors and warnings of \"check\".\n"
      "Example: vendlingua-cli stats FW0417AB.MES --json");
  AddFile(*command, options->file);
  AddOrigin(*command, options->origin);
  AddDisplay(*command, session);
  command->callback([&session, options] { RunStats(session, *options); });
}

}  // namespace vendlingua::cli
