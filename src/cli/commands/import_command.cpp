#include <memory>
#include <string>

#include "cli/commands.h"
#include "cli/import_options.h"
#include "core/platform/errors.h"
#include "core/platform/staged_file.h"

namespace vendlingua::cli {
namespace {

void RunImport(Session& session, const ImportOptions& options) {
  const std::filesystem::path output = OutputPath(options);
  StagedFile staged(output);
  ImportSource(session, options, staged.HandOver());
  RequireAllNamesTaken(session, options);
  staged.Commit();
  const MessageSet& set = session.set();
  session.Print({{"written", {PathText(output)}},
                 {"messageCount", set.MessageCount()},
                 {"notices", session.Notices()}},
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
  AddImportOptions(*command, *options);
  for (const char* needed : {"--languages", "--memory-start", "--memory-length", "--name"}) {
    command->get_option(needed)->required();
  }
  command->callback([&session, options] { RunImport(session, *options); });
}

}  // namespace vendlingua::cli
