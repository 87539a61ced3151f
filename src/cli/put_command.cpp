#include <iostream>

#include "cli/commands.h"
#include "msgfiles/hex.h"

namespace vendlingua::cli {
namespace {

struct PutOptions {
  std::string file;
  int language = 0;
  int message = 0;
  std::string text;
  std::string hex;
  bool has_hex = false;
};

DisplayCodes CodesFromHex(const std::string& hex) {
  DisplayCodes codes;
  for (std::size_t i = 0; i < hex.size(); i += 2) {
    const auto pair = std::string_view(hex).substr(i, 2);
    const auto code = pair.size() == 2 ? ParseHex(pair) : std::nullopt;
    if (!code) {
      throw CommandFailed("--hex: \"" + std::string(pair) + "\" is not a hexadecimal pair");
    }
    codes.push_back(static_cast<DisplayCode>(*code));
  }
  return codes;
}

void Run(Session& session, const PutOptions& options) {
  const DisplayCodes codes =
      options.has_hex ? CodesFromHex(options.hex) : DisplayCodesOf(options.text);
  session.Open(options.file);
  session.OpenDestination(options.language, options.message);
  const bool cut = session.engine.view.ChangeText(codes);
  session.engine.view.KeyPressed();
  session.Save();
  const MessageSet& set = session.set();
  if (cut) {
    std::cerr << "the text was cut to " << set.Width() << " cells\n";
  }
  const std::string stored =
      ToUtf8(set.DestText[static_cast<std::size_t>(options.message)].First(set.Width()));
  session.Print({{"file", options.file},
                 {"language", options.language},
                 {"message", options.message},
                 {"text", stored},
                 {"cut", cut},
                 {"messages", session.MessagesAsJson()}},
                std::to_string(options.message) + "\t" + stored + "\n");
}

}  // namespace

void AddPutCommand(CLI::App& app, Session& session) {
  const auto options = std::make_shared<PutOptions>();
  CLI::App* command = app.add_subcommand("put", "Change one message and save the file in place.");
  command->footer(
      "A text longer than the message is cut. Cells that the board fills stay as they are.\n"
      "Example: vendlingua-cli put FW0417AB.MES --language 2 --message 45 --text \"E08 No water\"");
  command->add_option("FILE", options->file, "message file (.MES or .MSX)")->required();
  command->add_option("--language", options->language, "number of the language")->required();
  command->add_option("--message", options->message, "number of the message")->required();
  auto* text = command->add_option("--text", options->text, "new text (UTF-8)");
  auto* hex = command->add_option("--hex", options->hex, "new text as hexadecimal display codes");
  text->excludes(hex);
  command->callback([&session, options, text, hex] {
    if (text->count() == 0 && hex->count() == 0) {
      throw CLI::RequiredError("--text or --hex");
    }
    options->has_hex = hex->count() != 0;
    Run(session, *options);
  });
}

}  // namespace vendlingua::cli
