#include <fmt/format.h>

#include <memory>
#include <string>
#include <utility>

#include "cli/commands.h"
#include "cli/options.h"
#include "core/formats/hex.h"

namespace vendlingua::cli {
namespace {

struct PutOptions {
  std::string file;
  std::string language;
  int message = 0;
  std::optional<std::string> text;  ///< UTF-8; either this or `hex` is given
  std::optional<std::string> hex;   ///< display codes
};

DisplayCodes CodesFromHex(const std::string& hex) {
  DecodedHex decoded = DecodeHexPairs(hex);
  if (!decoded.rest.empty()) {
    throw CommandFailed("--hex: \"" + std::string(decoded.rest.substr(0, 2)) +
                        "\" is not a hexadecimal pair");
  }
  return std::move(decoded.bytes);
}

void RunPut(Session& session, const PutOptions& options) {
  session.Open(options.file);
  const DisplayCodes codes =
      options.hex ? CodesFromHex(*options.hex) : session.CodesOf(options.text.value_or(""));
  const int language = session.FindLanguage(options.language);
  session.OpenDestination(language, options.message);
  MessageSet& set = session.set();
  const auto message = static_cast<std::size_t>(options.message);
  const bool cut = codes.size() > set.Width();
  set.SetText(message, codes);
  session.Save();
  if (cut) {
    Session::Warn(fmt::format("{}: message {}: the text was cut to {} cells", options.file, message,
                              set.Width()));
  }
  const std::string stored = session.alphabet().TextOf(set.DestText[message].First(set.Width()));
  session.Print({{"file", options.file},
                 {"language", language},
                 {"message", options.message},
                 {"text", stored},
                 {"cut", cut},
                 {"notices", session.Notices()}},
                std::to_string(options.message) + "\t" + stored + "\n");
}

}  // namespace

void AddPut(CLI::App& app, Session& session) {
  const auto options = std::make_shared<PutOptions>();
  CLI::App* command = app.add_subcommand("put", "Change one message and save the file in place.");
  command->footer(
      "A text longer than the message is cut. In a .MES file the cells that the board fills, "
      "which\n"
      "are the placeholders of language 0, stay; in a .MSX file every cell takes the text.\n"
      "Example: vendlingua-cli put FW0417AB.MES --language 2 --message 45 --text \"E08 No water\"");
  AddFile(*command, options->file);
  AddLanguage(*command, options->language);
  command->add_option("--message", options->message, "number of the message")->required();
  AddDisplay(*command, session);
  auto* text = command->add_option_group("text");
  text->add_option("--text", options->text, "new text (UTF-8)")->type_name("CHARACTERS");
  text->add_option("--hex", options->hex, "new text as hexadecimal display codes")
      ->type_name("CODES");
  text->require_option(1);
  command->callback([&session, options] { RunPut(session, *options); });
}

}  // namespace vendlingua::cli
