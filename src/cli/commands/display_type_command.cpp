#include <memory>
#include <string>

#include "cli/commands.h"
#include "cli/options.h"
#include "core/operations/display_type.h"

namespace vendlingua::cli {
namespace {

struct DisplayTypeOptions {
  std::string file;
  std::size_t type = 0;
};

void RunDisplayType(Session& session, const DisplayTypeOptions& options) {
  session.Open(options.file);
  StoreDisplayType(session.engine.workspace, session.dialogs, options.type);
  session.Print({{"file", options.file}, {"displayType", options.type}},
                options.file + ": display type " + std::to_string(options.type) + "\n");
}

}  // namespace

void AddDisplayType(CLI::App& app, Session& session) {
  const auto options = std::make_shared<DisplayTypeOptions>();
  CLI::App* command =
      app.add_subcommand("display-type", "Change the display type that a .MES file declares.");
  command->footer("Example: vendlingua-cli display-type FW0417AB.MES normal");
  command->add_option("FILE", options->file, "message file (.MES)")->required();
  command->add_option("TYPE", options->type, "display of the board")
      ->required()
      ->transform(DisplayName());
  command->callback([&session, options] { RunDisplayType(session, *options); });
}

}  // namespace vendlingua::cli
