#include <exception>
#include <iostream>

#include "cli/command_line.h"

int main(int argc, char** argv) {
  namespace cli = vendlingua::cli;
  cli::ExitStatus status = cli::ExitStatus::kFailed;
  try {
    cli::Session session;
    status = cli::RunCommandLine(session, argc, argv);
  } catch (const cli::WrongUsage& error) {
    std::cerr << "vendlingua-cli: " << error.what() << '\n';
    status = cli::ExitStatus::kWrongUsage;
  } catch (const std::exception& error) {
    std::cerr << "vendlingua-cli: " << error.what() << '\n';
  }
  return static_cast<int>(status);
}
