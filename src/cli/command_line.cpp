#include "cli/command_line.h"

#include <CLI/CLI.hpp>
#include <iostream>
#include <sstream>
#include <string>

#include "cli/commands.h"
#include "core/texts/valid_utf8.h"
#include "core/version.h"

namespace vendlingua::cli {
namespace {

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

void AddGrammar(CLI::App& app, Session& session) {
  app.name("vendlingua-cli");
  app.description(
      "Edits the display messages of vending machines and compiles them into flash files.");
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
  AddProof(app, session);
  AddVerify(app, session);
  AddCheck(app, session);
  AddStats(app, session);
  AddDiff(app, session);
  AddPretranslate(app, session);
  AddUpdate(app, session);
  AddRename(app, session);
  AddDisplayType(app, session);
  AddRecover(app, session);
}

ExitStatus RunCommandLine(Session& session, int argc, const char* const* argv) {
  CLI::App app;
  AddGrammar(app, session);
  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    return ExitOf(app, error);
  }
  return session.status;
}

}  // namespace vendlingua::cli
