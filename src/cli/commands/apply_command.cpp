#include <fmt/format.h>

#include <memory>
#include <string>

#include "cli/commands.h"
#include "cli/options.h"
#include "cli/standard_streams.h"
#include "cli/table_files.h"
#include "cli/table_messages.h"
#include "core/exchange/read_table.h"
#include "core/formats/message_texts.h"

namespace vendlingua::cli {
namespace {

struct ApplyOptions {
  std::string file;
  std::string language;
  std::string table;
  std::string folder;  ///< of the tables of all languages
  bool dry_run = false;
  bool centre = false;
};

void RequireUsable(const ApplyOptions& options) {
  if (options.folder.empty() ? options.language.empty() || options.table.empty()
                             : !options.language.empty() || !options.table.empty()) {
    throw WrongUsage("give --language and a table, or --all and a folder");
  }
}

// A table, the language that it belongs to, and what it changes there.
struct Application {
  TableFile table;
  TranslationPlan plan;
  std::vector<std::string> warnings;
};

Application PlanOf(const Session& session, const TableFile& table, const ApplyOptions& options) {
  const std::string name = NameOf(table.path);
  const TableReading reading = ReadTable(ReadInput(table.path));
  TranslationPlan plan = PlanTranslation(session.set(), TextsOf(session.set(), table.language),
                                         reading, session.alphabet(), {.centre = options.centre});
  if (plan.IsRefused()) {
    throw CommandFailed(InWords(name, reading.table.format, plan.problems));
  }
  std::vector<std::string> warnings;
  for (const PlanWarning& warning : plan.warnings) {
    warnings.push_back(InWords(name, reading.table.format, warning));
  }
  return {table, std::move(plan), std::move(warnings)};
}

// All tables are read before the first is taken; what is wrong with any of them is told.
std::vector<Application> PlansOf(const Session& session, const std::vector<TableFile>& tables,
                                 const ApplyOptions& options) {
  std::vector<Application> applications;
  std::string refusals;
  for (const TableFile& table : tables) {
    try {
      applications.push_back(PlanOf(session, table, options));
    } catch (const CommandFailed& refusal) {
      refusals += (refusals.empty() ? "" : "\n") + std::string(refusal.what());
    }
  }
  if (!refusals.empty()) {
    throw CommandFailed(refusals);
  }
  return applications;
}

void Apply(Session& session, const Application& application, bool dry_run) {
  const auto& changes = application.plan.changes;
  session.OpenDestination(application.table.language,
                          changes.empty() ? 0 : static_cast<int>(changes.front().message));
  if (!dry_run && !changes.empty()) {
    ApplyPlan(application.plan, session.set());
    session.Save();
  }
}

Json AsJson(const Session& session, const Application& application, bool dry_run) {
  Json json = {{"language", application.table.language},
               {"applied", dry_run ? 0 : application.plan.changes.size()}};
  if (dry_run) {
    json["changes"] = Json::array();
    for (const PlannedText& text : application.plan.changes) {
      json["changes"].push_back({{"message", text.message},
                                 {"old", session.alphabet().TextOf(text.before)},
                                 {"new", session.alphabet().TextOf(text.after)}});
    }
  }
  if (!application.warnings.empty()) {
    json["warnings"] = application.warnings;
  }
  return json;
}

std::string Report(const Session& session, const Application& application, bool dry_run) {
  const auto& changes = application.plan.changes;
  if (!dry_run) {
    return fmt::format("{} messages applied\n", changes.size());
  }
  std::string report;
  for (const PlannedText& text : changes) {
    report += fmt::format("{:>5} |{}|{}|\n", text.message, session.alphabet().TextOf(text.before),
                          session.alphabet().TextOf(text.after));
  }
  return report + fmt::format("{} messages would change\n", changes.size());
}

void PrintOne(Session& session, const ApplyOptions& options, const Application& application) {
  Json json = {{"file", options.file}};
  json.update(AsJson(session, application, options.dry_run));
  json["notices"] = session.Notices();
  session.Print(json, Report(session, application, options.dry_run));
}

void PrintAll(Session& session, const ApplyOptions& options,
              const std::vector<Application>& applications) {
  Json tables = Json::array();
  std::string report;
  for (const Application& application : applications) {
    Json json = {{"table", application.table.path}};
    json.update(AsJson(session, application, options.dry_run));
    tables.push_back(json);
    report += application.table.path + ":\n" + Report(session, application, options.dry_run);
  }
  session.Print({{"file", options.file}, {"tables", tables}, {"notices", session.Notices()}},
                report);
}

void RunApply(Session& session, const ApplyOptions& options) {
  RequireUsable(options);
  session.Open(options.file);
  const bool is_one = options.folder.empty();
  std::vector<TableFile> tables;
  if (is_one) {
    const int language = session.FindLanguage(options.language);
    tables.push_back({options.table, language});
  } else {
    tables = TablesIn(options.folder, session.set());
  }
  const std::vector<Application> applications = PlansOf(session, tables, options);
  for (const Application& application : applications) {
    for (const std::string& warning : application.warnings) {
      Session::Warn(warning);
    }
    Apply(session, application, options.dry_run);
  }
  if (is_one) {
    PrintOne(session, options, applications.front());
  } else {
    PrintAll(session, options, applications);
  }
}

}  // namespace

void AddApply(CLI::App& app, Session& session) {
  const auto options = std::make_shared<ApplyOptions>();
  CLI::App* command =
      app.add_subcommand("apply", "Take the texts of a table into a language and save the file.");
  command->footer(
      "The table is XLIFF, or .csv with commas, semicolons or tabs, in UTF-8, UTF-16 or "
      "Windows-1252.\n"
      "A text that is too long or holds a character without a display code refuses the table; a "
      "text\n"
      "whose placeholders are the board's is laid out around them.\n"
      "Example: vendlingua-cli apply FW0417AB.MES --language 2 english.csv");
  AddFile(*command, options->file);
  AddLanguage(*command, options->language)->required(false);
  AddDisplay(*command, session);
  command->add_option("TABLE", options->table,
                      "table as \"export\" writes it; - is standard input");
  command
      ->add_option("--all", options->folder,
                   "folder of tables named by language, instead of --language and TABLE")
      ->type_name("FOLDER");
  command->add_flag("--dry-run", options->dry_run, "show old and new texts and change nothing");
  command->add_flag("--centre", options->centre,
                    "centre the texts of messages that stand centred in language 0");
  command->callback([&session, options] { RunApply(session, *options); });
}

}  // namespace vendlingua::cli
