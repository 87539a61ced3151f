#include <exception>
#include <vector>

#include "cli/arguments.h"
#include "cli/command_line.h"
#include "cli/standard_streams.h"

int main(int argc, char** argv) {
  namespace cli = vendlingua::cli;
  const cli::StreamsOfBytes streams;
  try {
    cli::Session session;
    const std::vector<const char*> arguments = cli::Arguments(argc, argv);
    const auto count = static_cast<int>(arguments.size());
    return static_cast<int>(cli::RunCommandLine(session, count, arguments.data()));
  } catch (const std::exception& error) {
    cli::TellOnStderr(error.what());
    return static_cast<int>(cli::ExitStatus::kFailed);
  }
}
