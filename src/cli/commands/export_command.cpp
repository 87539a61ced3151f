#include <memory>
#include <string>
#include <system_error>

#include "cli/commands.h"
#include "cli/options.h"
#include "cli/standard_streams.h"
#include "core/exchange/language_tags.h"
#include "core/exchange/table_format.h"
#include "core/platform/errors.h"
#include "core/platform/files.h"
#include "core/platform/path_of.h"

namespace vendlingua::cli {
namespace {

namespace fs = std::filesystem;

struct ExportOptions {
  std::string file;
  std::string language;
  std::string origin = "0";
  std::string output;
  std::string folder;  ///< for a table of every language
  std::optional<TableFormat> format;
  std::string target_language;
};

TableFormat WantedFormat(const ExportOptions& options) {
  return options.format.value_or(FormatOf(PathOf(options.output)));
}

void RequireUsable(const Session& session, const ExportOptions& options) {
  if (!options.folder.empty()) {
    if (!options.language.empty() || !options.output.empty() || !options.target_language.empty()) {
      throw WrongUsage("--all goes without --language, --output and --target-language");
    }
    return;
  }
  if (options.language.empty() || options.output.empty()) {
    throw WrongUsage("give --language and --output, or --all");
  }
  if (session.json_output && options.output == kStandardStream) {
    throw WrongUsage("--json and --output - would both write to standard output");
  }
  if (!options.target_language.empty() && WantedFormat(options) == TableFormat::kCsv) {
    throw WrongUsage("--target-language goes with XLIFF; a .csv table does not hold it");
  }
}

// A path and what is written there.
struct OutputFile {
  std::string path;
  std::string content;
};

OutputFile OneLanguage(const Session& session, const ExportOptions& options, int origin) {
  const int language = session.FindLanguage(options.language);
  WarnIfItEndsEarly(session.set(), language);
  TranslationTable table = TableOf(session.set(), language, origin, session.alphabet());
  if (!options.target_language.empty()) {
    table.target_language = options.target_language;
  }
  return {options.output, WriteTable(table, WantedFormat(options))};
}

std::vector<OutputFile> AllLanguages(const Session& session, const ExportOptions& options,
                                     int origin) {
  const TableFormat format = WantedFormat(options);
  const auto languages = static_cast<int>(session.set().language_names.size());
  std::vector<OutputFile> files;
  for (int language = 1; language < languages; ++language) {
    WarnIfItEndsEarly(session.set(), language);
    const TranslationTable table = TableOf(session.set(), language, origin, session.alphabet());
    const fs::path name =
        PathOf(table.target_language + (format == TableFormat::kXliff ? ".xliff" : ".csv"));
    files.push_back({(PathOf(options.folder) / name).string(), WriteTable(table, format)});
  }
  return files;
}

void CreateFolder(const std::string& folder) {
  std::error_code error;
  fs::create_directory(PathOf(folder), error);
  if (error) {
    throw CommandFailed(folder + ": the folder cannot be created: " + error.message());
  }
}

void RunExport(Session& session, const ExportOptions& options) {
  RequireUsable(session, options);
  session.Open(options.file);
  const int origin = session.FindLanguage(options.origin);
  const std::vector<OutputFile> files = options.folder.empty()
                                            ? std::vector{OneLanguage(session, options, origin)}
                                            : AllLanguages(session, options, origin);
  for (const OutputFile& file : files) {
    RefuseToOverwrite(PathOf(options.file), PathOf(file.path));
  }
  if (!options.folder.empty()) {
    CreateFolder(options.folder);
  }
  Json written = Json::array();
  std::string report;
  for (const OutputFile& file : files) {
    WriteOutput(file.path, file.content);
    written.push_back(file.path);
    report += file.path + "\n";
  }
  if (options.output != kStandardStream) {
    session.Print({{"written", written}, {"notices", session.Notices()}}, report);
  }
}

}  // namespace

void AddExport(CLI::App& app, Session& session) {
  static const std::map<std::string, TableFormat> kFormats = {{"csv", TableFormat::kCsv},
                                                              {"xliff", TableFormat::kXliff}};
  const auto options = std::make_shared<ExportOptions>();
  CLI::App* command =
      app.add_subcommand("export", "Write the messages of a language as a table to translate.");
  command->footer(
      "A .csv table has the columns message, origin, text, in UTF-8; XLIFF is version 1.2. "
      "\"apply\"\n"
      "takes the edited table back. With --all the tables are named by language: de.csv, "
      "fr.csv.\n"
      "Example: vendlingua-cli export FW0417AB.MES --language 2 --output english.csv");
  AddFile(*command, options->file);
  AddLanguage(*command, options->language)->required(false);
  command
      ->add_option("--origin", options->origin,
                   "number or name of the origin language, 0 if not given")
      ->type_name("LANGUAGE");
  AddDisplay(*command, session);
  command->add_option("--output", options->output, "table to write; - is standard output")
      ->type_name("FILE");
  command
      ->add_option("--all", options->folder,
                   "folder for the tables of all languages, instead of --language and --output")
      ->type_name("FOLDER");
  command
      ->add_option("--format", options->format,
                   "of the table; if not given, .xliff and .xlf are XLIFF, all others csv")
      ->transform(CLI::CheckedTransformer(kFormats, CLI::ignore_case).description("csv|xliff"));
  command
      ->add_option("--target-language", options->target_language,
                   "language tag for XLIFF, as \"pt-BR\", instead of one made of the name")
      ->check(CLI::Validator(
          [](const std::string& tag) {
            return IsLanguageTag(tag) ? std::string() : "\"" + tag + "\" is no language tag";
          },
          "TAG"));
  command->callback([&session, options] { RunExport(session, *options); });
}

}  // namespace vendlingua::cli
