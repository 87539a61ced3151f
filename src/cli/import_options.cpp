#include "cli/import_options.h"

#include "cli/options.h"
#include "core/formats/message_file.h"
#include "core/platform/errors.h"
#include "core/platform/path_of.h"

namespace vendlingua::cli {

void AddImportOptions(CLI::App& command, ImportOptions& options) {
  command.add_option("SOURCE", options.source, "assembler source")->required();
  command.add_option("--languages", options.languages, "language slots of the board, 1 to 31")
      ->transform(NumberAnswer());
  command
      .add_option("--language-message", options.language_message,
                  "number of the message that names the language, for a source without MNLING")
      ->transform(NumberAnswer());
  command.add_option("--memory-start", options.memory_start, "start of the message memory")
      ->transform(NumberAnswer());
  command.add_option("--memory-length", options.memory_length, "length of it in bytes")
      ->transform(NumberAnswer());
  command.add_option("--name", options.names, "name of a language, one for each section")
      ->allow_extra_args(false);
  command.add_option("--output", options.output, "file to make (.MES)")->required();
}

std::filesystem::path OutputPath(const ImportOptions& options) {
  std::filesystem::path output = WithDefaultExtension(PathOf(options.output), "MES");
  if (MessageFileType(output) != kMesType) {
    throw CommandFailed(PathText(output) +
                        ": the file could not be opened again; its name must end in .MES and hold "
                        "no other dot");
  }
  RefuseToOverwrite(PathOf(options.source), output);
  return output;
}

void ImportSource(Session& session, const ImportOptions& options,
                  const std::filesystem::path& place) {
  auto& inputs = session.dialogs.inputs;
  inputs[InputPurpose::kLanguageCount] = {options.languages};
  if (!options.language_message.empty()) {
    inputs[InputPurpose::kLanguageMessage] = {options.language_message};
  }
  inputs[InputPurpose::kMemoryStart] = {options.memory_start};
  inputs[InputPurpose::kMemoryLength] = {options.memory_length};
  inputs[InputPurpose::kNewLanguageName].assign(options.names.begin(), options.names.end());
  session.dialogs.files[FilePurpose::kSaveMessages] = place;
  if (session.engine.opener.Import(PathOf(options.source)) != OpenOutcome::kOpened) {
    throw CommandFailed(options.source + ": was not imported");
  }
}

void RequireAllNamesTaken(const Session& session, const ImportOptions& options) {
  const auto& names = session.dialogs.inputs.at(InputPurpose::kNewLanguageName);
  if (!names.empty()) {
    throw CommandFailed(options.source + ": has fewer sections than there are names: \"" +
                        names.front() + "\" names none");
  }
}

}  // namespace vendlingua::cli
