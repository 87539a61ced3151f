#include <exception>
#include <iostream>

#include "cli/commands.h"

namespace {

constexpr int kDone = 0;
constexpr int kFailed = 1;
constexpr int kWrongUsage = 2;

}  // namespace

int main(int argc, char** argv) {
  namespace cli = vendlingua::cli;
  try {
    cli::Session session;
    CLI::App app(
        "Edits the display messages of vending machines and compiles them into flash files.",
        "vendlingua-cli");
    app.set_version_flag("--version", "vendlingua-cli " VENDLINGUA_VERSION);
    app.add_flag("--json", session.json_output, "print JSON for programs");
    app.require_subcommand(1);
    app.fallthrough();
    cli::AddInfoCommand(app, session);
    cli::AddTextsCommand(app, session);
    cli::AddPutCommand(app, session);
    cli::AddNewLanguageCommand(app, session);
    cli::AddExportCommand(app, session);
    cli::AddApplyCommand(app, session);
    cli::AddImportCommand(app, session);
    cli::AddCompileCommand(app, session);
    cli::AddSectionsCommand(app, session);
    cli::AddVerifyCommand(app, session);
    try {
      app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
      return app.exit(error) == 0 ? kDone : kWrongUsage;
    }
    return kDone;
  } catch (const std::exception& error) {
    std::cerr << "vendlingua-cli: " << error.what() << '\n';
    return kFailed;
  }
}
