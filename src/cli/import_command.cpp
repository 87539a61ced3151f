#include "cli/commands.h"
#include "core/platform/errors.h"
#include "core/platform/staged_file.h"

namespace vendlingua::cli {
namespace {

std::filesystem::path OutputPath(const ImportOptions& options) {
  std::filesystem::path output = WithDefaultExtension(options.output, "MES");
  if (MessageFileType(output) != kMesType) {
    throw CommandFailed(PathText(output) +
                        ": the file could not be opened again; its name must end in .MES and hold "
                        "no other dot");
  }
  return output;
}

}  // namespace

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

}  // namespace vendlingua::cli
