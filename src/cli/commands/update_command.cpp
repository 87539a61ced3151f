#include <cstddef>
#include <filesystem>
#include <memory>
#include <set>
#include <string>

#include "cli/carry_report.h"
#include "cli/commands.h"
#include "cli/import_options.h"
#include "cli/options.h"
#include "core/formats/message_file.h"
#include "core/marks/marks_file.h"
#include "core/platform/errors.h"
#include "core/platform/files.h"
#include "core/platform/path_of.h"
#include "core/platform/staged_file.h"
#include "core/transfer/language_update.h"

namespace vendlingua::cli {
namespace {

struct UpdateOptions {
  ImportOptions import;
  std::string from;
  std::string report;
};

// Languages go by their names from file to file.
void RequireDistinctNames(const MessageSet& older) {
  std::set<std::string> names;
  for (int k = 1; older.HoldsLanguage(k); ++k) {
    const std::string name = NameInUpdate(older, k);
    if (name.empty()) {
      throw CommandFailed(PathText(older.CurrentFileName) + ": language " + std::to_string(k) +
                          " has no name; rename it first");
    }
    if (!names.insert(name).second) {
      throw CommandFailed(PathText(older.CurrentFileName) + ": has two languages \"" + name +
                          "\"; rename one of them first");
    }
  }
  if (names.empty()) {
    throw CommandFailed(PathText(older.CurrentFileName) +
                        ": holds no language that could be carried over");
  }
}

// What is not given is as in the older file: it is the same board.
ImportOptions WithDefaults(ImportOptions options, const MessageSet& older) {
  const auto set_default = [](std::string& option, std::uint32_t value) {
    if (option.empty()) {
      option = std::to_string(value);
    }
  };
  set_default(options.languages, static_cast<std::uint32_t>(older.SlotCount()));
  set_default(options.memory_start, older.MemStart);
  set_default(options.memory_length, older.MemLength);
  if (options.names.empty()) {
    options.names.assign(older.language_names.begin() + 1, older.language_names.end());
  }
  return options;
}

// The new file is there by then: that its marks are not is no reason to fail.
void CarryMarks(const MessageSet& older, const std::filesystem::path& output) try {
  CopyMarks(older.CurrentFileName, output);
  for (int k = 1; older.HoldsLanguage(k); ++k) {
    const std::string& name = older.language_names[static_cast<std::size_t>(k)];
    const std::string name_there = NameInUpdate(older, k);
    if (name != name_there) {
      RenameInMarks(output, name, name_there);
    }
  }
} catch (const FileError& error) {
  Session::Warn(error.what());
}

void RunUpdate(Session& session, const UpdateOptions& options) {
  const std::filesystem::path output = OutputPath(options.import);
  RefuseToOverwrite(PathOf(options.from), output);
  RefuseTableInPlaceOf({PathOf(options.import.source), PathOf(options.from), output},
                       options.report);
  const MessageSet older = ReadMessageFile(PathOf(options.from));
  RequireDistinctNames(older);
  for (int language = 1; older.HoldsLanguage(language); ++language) {
    WarnIfItEndsEarly(older, language);
  }

  StagedFile staged(output);
  const std::filesystem::path& place = staged.HandOver();
  ImportSource(session, WithDefaults(options.import, older), place);
  if (!options.import.names.empty()) {
    RequireAllNamesTaken(session, options.import);
  }
  session.set().LoadDisplayType(older.DisplayType);
  const std::vector<CarriedLanguage> languages = CarryLanguages(session.set(), older);
  WriteFile(place, Patched(session.set().file_content, PatchesFor(session.set(), languages)));

  CarryReport report(session.alphabet(), older.Width());
  for (const CarriedLanguage& language : languages) {
    report.Add(language.number, language.name, language.messages);
  }
  report.WriteTable(options.report);
  staged.Commit();
  CarryMarks(older, output);
  session.Print({{"written", {PathText(output)}},
                 {"messages", report.messages()},
                 {"counts", report.counts()},
                 {"notices", session.Notices()}},
                report.text());
}

}  // namespace

void AddUpdate(CLI::App& app, Session& session) {
  const auto options = std::make_shared<UpdateOptions>();
  CLI::App* command = app.add_subcommand(
      "update", "Make the .MES file of a new firmware with the languages of an older one.");
  command->footer(
      "Slots, memory and the first language are those of the older file where they are not given.\n"
      "A message without a certain translation holds the text of the source. The marks beside the\n"
      "older file go along.\n"
      "Example: vendlingua-cli update firmware.src --from FW0417AB.MES --output FW0417AC.MES "
      "--report update.csv");
  AddImportOptions(*command, options->import);
  command->add_option("--from", options->from, "message file of the older firmware")->required();
  AddDisplay(*command, session);
  command->add_option("--report", options->report,
                      "table to write with a row a message and language");
  command->callback([&session, options] { RunUpdate(session, *options); });
}

}  // namespace vendlingua::cli
