#include <exception>

#include "cli/command_line.h"
#include "cli/standard_streams.h"

int main(int argc, char** argv) {
  namespace cli = vendlingua::cli;
  try {
    cli::Session session;
    return static_cast<int>(cli::RunCommandLine(session, argc, argv));
  } catch (const std::exception& error) {
    cli::TellOnStderr(error.what());
    return static_cast<int>(cli::ExitStatus::kFailed);
  }
}
