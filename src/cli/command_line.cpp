#include "cli/command_line.h"

#include <CLI/CLI.hpp>
#include <iostream>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "cli/commands.h"
#include "core/operations/answers.h"
#include "core/texts/valid_utf8.h"
#include "core/version.h"

namespace vendlingua::cli {
namespace {

// Accepts a number in decimal, "&H" or "0x" notation and hands it on as the input boxes of the
// engine take it: "0x" becomes "&H".
CLI::Validator NumberAnswer() {
  return {[](std::string& answer) {
            if (answer.starts_with("0x") || answer.starts_with("0X")) {
              answer.replace(0, 2, "&H");
            }
            return WholeNumber(answer) ? std::string() : "\"" + answer + "\" is not a number";
          },
          "NUMBER"};
}

void AddInfo(CLI::App& app, Session& session) {
  const auto options = std::make_shared<InfoOptions>();
  CLI::App* command =
      app.add_subcommand("info", "Show dimensions and languages of a message file.");
  command->footer("Example: vendlingua-cli info FW0417AB.MES --json");
  command->add_option("FILE", options->file, "message file (.MES or .MSX)")->required();
  command->callback([&session, options] { RunInfo(session, *options); });
}

void AddTexts(CLI::App& app, Session& session) {
  const auto options = std::make_shared<TextsOptions>();
  CLI::App* command = app.add_subcommand("texts", "Show all messages of one language.");
  command->footer("Example: vendlingua-cli texts FW0417AB.MES --language 2");
  command->add_option("FILE", options->file, "message file (.MES or .MSX)")->required();
  command
      ->add_option(
          "--language", options->language,
          "number of the language; 0 is the reference, or the built-in table of a .MSX file")
      ->required();
  command->callback([&session, options] { RunTexts(session, *options); });
}

void AddPut(CLI::App& app, Session& session) {
  const auto options = std::make_shared<PutOptions>();
  CLI::App* command = app.add_subcommand("put", "Change one message and save the file in place.");
  command->footer(
      "A text longer than the message is cut. In a .MES file the cells that the board fills, "
      "which\n"
      "are the placeholders of language 0, stay; in a .MSX file every cell takes the text.\n"
      "Example: vendlingua-cli put FW0417AB.MES --language 2 --message 45 --text \"E08 No water\"");
  command->add_option("FILE", options->file, "message file (.MES or .MSX)")->required();
  command->add_option("--language", options->language, "number of the language")->required();
  command->add_option("--message", options->message, "number of the message")->required();
  auto* text = command->add_option_group("text");
  text->add_option("--text", options->text, "new text (UTF-8)");
  text->add_option("--hex", options->hex, "new text as hexadecimal display codes");
  text->require_option(1);
  command->callback([&session, options] { RunPut(session, *options); });
}

void AddNewLanguage(CLI::App& app, Session& session) {
  const auto options = std::make_shared<NewLanguageOptions>();
  CLI::App* command = app.add_subcommand("new-language", "Add a language to a .MES file.");
  command->footer("Example: vendlingua-cli new-language FW0417AB.MES --from 1 --name POLSKI");
  command->add_option("FILE", options->file, "message file (.MES)")->required();
  command->add_option("--from", options->from,
                      "start from the texts of this language instead of blank ones");
  command->add_option("--name", options->name, "name of the new language, at most 20 characters")
      ->required();
  command->callback([&session, options] { RunNewLanguage(session, *options); });
}

void AddExport(CLI::App& app, Session& session) {
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
  command->callback([&session, options] { RunExport(session, *options); });
}

void AddApply(CLI::App& app, Session& session) {
  const auto options = std::make_shared<ApplyOptions>();
  CLI::App* command =
      app.add_subcommand("apply", "Take the texts of a table into a language and save the file.");
  command->footer(
      "A text that is too long or holds a character without a display code refuses the table.\n"
      "Example: vendlingua-cli apply FW0417AB.MES --language 2 english.csv");
  command->add_option("FILE", options->file, "message file (.MES or .MSX)")->required();
  command->add_option("--language", options->language, "number of the language")->required();
  command->add_option("TABLE", options->table, "table as \"export\" writes it")->required();
  command->callback([&session, options] { RunApply(session, *options); });
}

void AddImport(CLI::App& app, Session& session) {
  const auto options = std::make_shared<ImportOptions>();
  CLI::App* command =
      app.add_subcommand("import", "Make a .MES file of a firmware assembler source.");
  command->footer(
      "Numbers are decimal, &H… or 0x….\n"
      "Example: vendlingua-cli import firmware.src --languages 9 --memory-start 0xFF0000 "
      "--memory-length 0xFFF0 --name ITALIANO --output FW0417AB.MES");
  command->add_option("SOURCE", options->source, "assembler source")->required();
  command->add_option("--languages", options->languages, "language slots of the board, 1 to 31")
      ->required()
      ->transform(NumberAnswer());
  command
      ->add_option("--language-message", options->language_message,
                   "number of the message that names the language, for a source without MNLING")
      ->transform(NumberAnswer());
  command->add_option("--memory-start", options->memory_start, "start of the message memory")
      ->required()
      ->transform(NumberAnswer());
  command->add_option("--memory-length", options->memory_length, "length of it in bytes")
      ->required()
      ->transform(NumberAnswer());
  command->add_option("--name", options->names, "name of a language, one for each section")
      ->required()
      ->allow_extra_args(false);
  command->add_option("--output", options->output, "file to make (.MES)")->required();
  command->callback([&session, options] { RunImport(session, *options); });
}

void AddCompile(CLI::App& app, Session& session) {
  const auto options = std::make_shared<CompileOptions>();
  CLI::App* command = app.add_subcommand("compile", "Compile languages into flash files.");
  command->footer(
      "A board with .SDATA memory takes .MHX files, any other .hex files.\n"
      "Example: vendlingua-cli compile FW0417AB.MES --languages 1,2,3,4,5,6,7,8,9 "
      "--output FW0417AB.MHX --copy MP0417AA.MSX");
  command->add_option("FILE", options->file, "message file (.MES or .MSX)")->required();
  command
      ->add_option("--languages", options->languages,
                   "numbers of the languages, as many as the board has slots; not for .MSX files")
      ->delimiter(',')
      ->allow_extra_args(false);
  command->add_option("--output", options->output, "flash file to write")->required();
  command->add_option("--copy", options->copy,
                      "identified copy to write (.MSX), for boards with 9 slots");
  command->callback([&session, options] { RunCompile(session, *options); });
}

void AddSections(CLI::App& app, Session& session) {
  const auto options = std::make_shared<SectionsOptions>();
  CLI::App* command =
      app.add_subcommand("sections", "Cut a flash file into the section files of the board.");
  command->footer("Example: vendlingua-cli sections FW0417AB.MHX --output out/FW0417AB");
  command->add_option("FILE", options->file, "flash file (.MHX)")->required();
  command->add_option("--output", options->output,
                      "path of the section files without extension, that of FILE if not given");
  command->callback([&session, options] { RunSections(session, *options); });
}

void AddVerify(CLI::App& app, Session& session) {
  const auto files = std::make_shared<std::vector<std::string>>();
  CLI::App* command = app.add_subcommand("verify", "Say whether files are sound.");
  command->footer(
      "Files of S-records: syntax, count, checksum, gaps and overlaps, line by line.\n"
      ".MES files: header, sizes, block count, names.\n"
      "Example: vendlingua-cli verify FW0417AB.MES FW0417AB.MHX MP0417AA.MSX");
  command->add_option("FILE", *files, "files to check")->required();
  command->callback([&session, files] { RunVerify(session, *files); });
}

// Prints the help that was asked for, or what is wrong with the command line, which may hold bytes
// that are no text.
ExitStatus ExitOf(const CLI::App& app, const CLI::ParseError& error) {
  std::ostringstream out;
  std::ostringstream err;
  const int status = app.exit(error, out, err);
  std::cout << ValidUtf8(out.str());
  std::cerr << ValidUtf8(err.str());
  return status == 0 ? ExitStatus::kDone : ExitStatus::kWrongUsage;
}

}  // namespace

ExitStatus RunCommandLine(Session& session, int argc, const char* const* argv) {
  CLI::App app("Edits the display messages of vending machines and compiles them into flash files.",
               "vendlingua-cli");
  app.set_version_flag("--version", "vendlingua-cli " + std::string(kVersion));
  app.add_flag("--json", session.json_output, "print JSON for programs");
  app.require_subcommand(1);
  app.fallthrough();
  AddInfo(app, session);
  AddTexts(app, session);
  AddPut(app, session);
  AddNewLanguage(app, session);
  AddExport(app, session);
  AddApply(app, session);
  AddImport(app, session);
  AddCompile(app, session);
  AddSections(app, session);
  AddVerify(app, session);
  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    return ExitOf(app, error);
  }
  return ExitStatus::kDone;
}

}  // namespace vendlingua::cli
