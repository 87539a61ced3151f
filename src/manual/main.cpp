#include <exception>
#include <filesystem>
#include <iostream>
#include <stdexcept>

#include "cli/command_line.h"
#include "core/platform/files.h"
#include "core/version.h"
#include "manual/completions.h"
#include "manual/grammar.h"
#include "manual/man_page.h"

namespace {

// Writes the manual page and the completions of vendlingua-cli under the names that they are
// installed by.
void WriteManual(const std::filesystem::path& folder, const std::string& date) {
  namespace manual = vendlingua::manual;
  vendlingua::cli::Session session;
  CLI::App app;
  vendlingua::cli::AddGrammar(app, session);
  const manual::Grammar grammar = manual::GrammarOf(app);
  const std::string version(vendlingua::kVersion);
  vendlingua::WriteFile(folder / "vendlingua-cli.1", manual::ManPage(grammar, version, date));
  vendlingua::WriteFile(folder / "vendlingua-cli", manual::BashCompletion(grammar));
  vendlingua::WriteFile(folder / "_vendlingua-cli", manual::ZshCompletion(grammar));
  vendlingua::WriteFile(folder / "vendlingua-cli.fish", manual::FishCompletion(grammar));
}

}  // namespace

int main(int argc, char** argv) {
  try {
    if (argc != 3) {
      throw std::runtime_error("usage: make_manual FOLDER DATE");
    }
    WriteManual(argv[1], argv[2]);
    return 0;
  } catch (const std::exception& error) {
    std::cerr << "make_manual: " << error.what() << '\n';
    return 1;
  }
}
