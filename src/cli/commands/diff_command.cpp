#include <memory>
#include <string>

#include "cli/commands.h"
#include "cli/diff_output.h"
#include "cli/options.h"
#include "core/formats/flash_file.h"
#include "core/formats/message_file.h"
#include "core/platform/errors.h"
#include "core/platform/path_of.h"

namespace vendlingua::cli {
namespace {

struct DiffOptions {
  std::string a;
  std::string b;
  std::string dimensions;
};

void DiffMessageFiles(Session& session, const DiffOptions& options) {
  const MessageSet a = ReadMessageFile(PathOf(options.a));
  const MessageSet b = ReadMessageFile(PathOf(options.b));
  const MessageFileComparison comparison = CompareMessageFiles(a, b);
  const DiffTexts texts{session.AlphabetFor(a), session.AlphabetFor(b)};
  session.status = comparison.Same() ? ExitStatus::kDone : kDifferent;
  session.Print(DifferencesAsJson(comparison, texts), DifferencesAsText(comparison, texts, a));
}

FlashMemory ReadFlash(const std::string& file) {
  if (MessageFileType(PathOf(file)) == kMesType) {
    throw CommandFailed(file +
                        ": is no flash file; compile it, or compare two message files without "
                        "--dimensions");
  }
  return ReadFlashFile(PathOf(file)).memory;
}

void DiffFlashFiles(Session& session, const DiffOptions& options) {
  std::optional<MessageSet> dimensions;
  if (!options.dimensions.empty()) {
    dimensions = ReadMessageFile(PathOf(options.dimensions));
  } else if (session.display) {
    throw WrongUsage("--display goes with --dimensions; without, no text of flash files is shown");
  }
  const FlashMemory a = ReadFlash(options.a);
  const FlashMemory b = ReadFlash(options.b);
  const FlashComparison comparison = CompareFlash(a, b, dimensions ? &*dimensions : nullptr);
  session.status = comparison.Same() ? ExitStatus::kDone : kDifferent;
  session.Print(
      DifferencesAsJson(comparison),
      dimensions ? DifferencesAsText(
                       comparison, FlashTexts{a, b, *dimensions, session.AlphabetFor(*dimensions)})
                 : DifferencesAsText(comparison));
}

void RunDiff(Session& session, const DiffOptions& options) {
  const bool are_message_files = IsMessageFileType(MessageFileType(PathOf(options.a))) &&
                                 IsMessageFileType(MessageFileType(PathOf(options.b)));
  try {
    if (are_message_files && options.dimensions.empty()) {
      DiffMessageFiles(session, options);
    } else {
      DiffFlashFiles(session, options);
    }
  } catch (const std::exception& error) {
    throw Trouble(error.what());
  }
}

}  // namespace

void AddDiff(CLI::App& app, Session& session) {
  const auto options = std::make_shared<DiffOptions>();
  CLI::App* command = app.add_subcommand("diff", "Compare two message files or two flash files.");
  command->footer(
      "The exit status is 0 when they are the same, 1 when they differ, 2 for trouble.\n"
      "Example: vendlingua-cli diff FW0417AB.MES FW0417AC.MES");
  command->add_option("A", options->a, "message file or flash file")->required();
  command->add_option("B", options->b, "another one of its kind")->required();
  AddDisplay(*command, session);
  command->add_option("--dimensions", options->dimensions,
                      "message file of the board, to tell slots and messages of flash files");
  command->callback([&session, options] { RunDiff(session, *options); });
}

}  // namespace vendlingua::cli
