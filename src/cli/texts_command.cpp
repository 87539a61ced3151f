#include "cli/commands.h"
#include "core/formats/hex.h"
#include "core/formats/message_texts.h"

namespace vendlingua::cli {

void RunTexts(Session& session, const TextsOptions& options) {
  session.Open(options.file);
  const std::string& name = session.LanguageName(options.language);
  const MessageSet& set = session.set();
  const MessageTexts texts = TextsOf(set, options.language);
  Json messages = Json::array();
  std::string text;
  for (std::size_t i = 0; i < set.MessageCount(); ++i) {
    const auto cells = texts[i].First(set.Width());
    std::string hex;
    for (const DisplayCode code : cells) {
      AppendHexByte(hex, code);
    }
    messages.push_back({{"index", i}, {"text", ToUtf8(cells)}, {"hex", hex}});
    text += std::to_string(i) + "\t" + ToUtf8(cells) + "\n";
  }
  session.Print({{"language", options.language}, {"name", name}, {"messages", messages}}, text);
}

}  // namespace vendlingua::cli
