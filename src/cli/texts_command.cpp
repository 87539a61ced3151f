#include "cli/commands.h"
#include "msgfiles/hex.h"

namespace vendlingua::cli {
namespace {

struct TextsOptions {
  std::string file;
  int language = 0;
};

void Run(Session& session, const TextsOptions& options) {
  session.Open(options.file);
  const std::string& name = session.LanguageName(options.language);
  session.engine.languages.ChooseOrigin(options.language);
  const MessageSet& set = session.set();
  Json messages = Json::array();
  std::string text;
  for (std::size_t i = 0; i < set.MessageCount(); ++i) {
    const auto cells = set.OriginText[i].First(set.Width());
    std::string hex;
    for (const DisplayCode code : cells) {
      AppendHexByte(hex, code);
    }
    messages.push_back({{"index", i}, {"text", ToUtf8(cells)}, {"hex", hex}});
    text += std::to_string(i) + "\t" + ToUtf8(cells) + "\n";
  }
  session.Print({{"language", options.language}, {"name", name}, {"messages", messages}}, text);
}

}  // namespace

void AddTextsCommand(CLI::App& app, Session& session) {
  const auto options = std::make_shared<TextsOptions>();
  CLI::App* command = app.add_subcommand("texts", "Show all messages of one language.");
  command->footer("Example: vendlingua-cli texts FW0417AB.MES --language 2");
  command->add_option("FILE", options->file, "message file (.MES or .MSX)")->required();
  command
      ->add_option(
          "--language", options->language,
          "number of the language; 0 is the reference, or the built-in table of a .MSX file")
      ->required();
  command->callback([&session, options] { Run(session, *options); });
}

}  // namespace vendlingua::cli
