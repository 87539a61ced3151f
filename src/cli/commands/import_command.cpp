#include <memory>
#include <string>

#include "cli/commands.h"
#include "cli/options.h"
#include "core/platform/errors.h"
#include "core/platform/staged_file.h"

namespace vendlingua::cli {
namespace {

struct ImportOptions {
  std::string source;
  // Numbers as the input boxes of the engine take them.
  std::string languages;
  std::string language_message;  ///< empty when not given
  std::string memory_start;
  std::string memory_length;
  std::vector<std::string> names;
  std::string output;
};

std::filesystem::path OutputPath(const ImportOptions& options) {
  std::filesystem::path output = WithDefaultExtension(options.output, "MES");
  if (MessageFileType(output) != kMesType) {
    throw CommandFailed(PathText(output) +
                        ": the file could not be opened again; its name must end in .MES and hold "
                        "no other dot");
  }
  return output;
}

void RunImport(Session& session, const ImportOptions& options) {
  const std::filesystem::path output = OutputPath(options);
  RefuseToOverwrite(options.source, output);
  StagedFile staged(output);
  auto& inputs = session.dialogs.inputs;
  inputs[InputPurpose::kLanguageCount] = {options.languages};
  if (!options.language_message.empty()) {
    inputs[InputPurpose::kLanguageMessage] = {options.language_message};
  }
  inputs[InputPurpose::kMemoryStart] = {options.memory_start};
  inputs[InputPurpose::kMemoryLength] = {options.memory_length};
  auto& names = inputs[InputPurpose::kNewLanguageName];
  names.assign(options.names.begin(), options.names.end());
  session.dialogs.files[FilePurpose::kSaveMessages] = staged.HandOver();
  if (session.engine.opener.Import(options.source) != OpenOutcome::kOpened) {
    throw CommandFailed(options.source + ": was not imported");
  }
  if (!names.empty()) {
    throw CommandFailed(options.source + ": has fewer sections than there are names: \"" +
                        names.front() + "\" names none");
  }
  staged.Commit();
  const MessageSet& set = session.set();
  session.Print({{"written", {PathText(output)}},
                 {"messageCount", set.MessageCount()},
                 {"messages", session.MessagesAsJson()}},
                PathText(output) + ": " + std::to_string(set.MessageCount()) + " messages of " +
                    std::to_string(set.Width()) + " cells\n");
}

}  // namespace

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

}  // namespace vendlingua::cli
