#include <exception>
#include <iostream>

#include "cli/command_line.h"
#include "core/texts/valid_utf8.h"

namespace {

void PrintError(const std::exception& error) {
  std::cerr << "vendlingua-cli: " << vendlingua::ValidUtf8(error.what()) << '\n';
}

}  // namespace

int main(int argc, char** argv) {
  namespace cli = vendlingua::cli;
  cli::ExitStatus status = cli::ExitStatus::kFailed;
  try {
    cli::Session session;
    status = cli::RunCommandLine(session, argc, argv);
  } catch (const cli::WrongUsage& error) {
    PrintError(error);
    status = cli::ExitStatus::kWrongUsage;
  } catch (const cli::Trouble& error) {
    PrintError(error);
    status = cli::kTrouble;
  } catch (const std::exception& error) {
    PrintError(error);
  }
  return static_cast<int>(status);
}
