#include <CLI/CLI.hpp>
#include <memory>
#include <string>

#include "cli/commands.h"
#include "core/operations/recovery.h"
#include "core/platform/path_of.h"

namespace vendlingua::cli {
namespace {

void RunRecover(Session& session, const std::string& file) {
  const bool put_back = Recover(PathOf(file));
  session.Print(
      {{"file", file}, {"recovered", put_back}},
      file + (put_back ? ": holds again what it held before the save that was interrupted\n"
                       : ": no save of it was interrupted\n"));
}

}  // namespace

void AddRecover(CLI::App& app, Session& session) {
  const auto file = std::make_shared<std::string>();
  CLI::App* command = app.add_subcommand("recover", "Put a file back whose save was interrupted.");
  command->footer(
      "A save that is killed half-way leaves an undo file (~NAME.undo) beside the message file. It "
      "is\n"
      "used only while nobody else has changed the file since.\n"
      "Example: vendlingua-cli recover FW0417AB.MES");
  command->add_option("FILE", *file, "message file")->required();
  command->callback([&session, file] { RunRecover(session, *file); });
}

}  // namespace vendlingua::cli
