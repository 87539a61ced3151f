#include <memory>
#include <string>

#include "cli/commands.h"
#include "cli/options.h"
#include "core/formats/hex.h"
#include "core/formats/message_texts.h"

namespace vendlingua::cli {

namespace {

struct TextsOptions {
  std::string file;
  std::string language;
};

void RunTexts(Session& session, const TextsOptions& options) {
  session.Open(options.file);
  const int language = session.FindLanguage(options.language);
  const MessageSet& set = session.set();
  const Alphabet& alphabet = session.alphabet();
  const MessageTexts texts = TextsOf(set, language);
  WarnIfItEndsEarly(session.set(), language);
  Json messages = Json::array();
  std::string text;
  for (std::size_t i = 0; i < set.MessageCount(); ++i) {
    const auto cells = texts[i].First(set.Width());
    const std::string drawn = alphabet.TextOf(cells);
    std::string hex;
    for (const DisplayCode code : cells) {
      AppendHexByte(hex, code);
    }
    messages.push_back({{"index", i}, {"text", drawn}, {"hex", hex}});
    text += std::to_string(i) + "\t" + drawn + "\n";
  }
  session.Print(
      {{"language", language}, {"name", session.LanguageName(language)}, {"messages", messages}},
      text);
}

}  // namespace

void AddTexts(CLI::App& app, Session& session) {
  const auto options = std::make_shared<TextsOptions>();
  CLI::App* command = app.add_subcommand("texts", "Show all messages of one language.");
  command->footer("Example: vendlingua-cli texts FW0417AB.MES --language 2");
  AddFile(*command, options->file);
  AddLanguage(*command, options->language,
              "number or name of the language; 0 is the reference, or the built-in table of a .MSX "
              "file");
  AddDisplay(*command, session);
  command->callback([&session, options] { RunTexts(session, *options); });
}

}  // namespace vendlingua::cli
