#include <iostream>
#include <utility>

#include "cli/commands.h"
#include "core/formats/hex.h"

namespace vendlingua::cli {
namespace {

DisplayCodes CodesFromHex(const std::string& hex) {
  DecodedHex decoded = DecodeHexPairs(hex);
  if (!decoded.rest.empty()) {
    throw CommandFailed("--hex: \"" + std::string(decoded.rest.substr(0, 2)) +
                        "\" is not a hexadecimal pair");
  }
  return std::move(decoded.bytes);
}

}  // namespace

void RunPut(Session& session, const PutOptions& options) {
  const DisplayCodes codes =
      options.hex ? CodesFromHex(*options.hex) : DisplayCodesOf(options.text.value_or(""));
  session.Open(options.file);
  session.OpenDestination(options.language, options.message);
  MessageSet& set = session.set();
  const auto message = static_cast<std::size_t>(options.message);
  const bool cut = codes.size() > set.Width();
  set.SetText(message, codes);
  session.Save();
  if (cut) {
    std::cerr << "the text was cut to " << set.Width() << " cells\n";
  }
  const std::string stored = ToUtf8(set.DestText[message].First(set.Width()));
  session.Print({{"file", options.file},
                 {"language", options.language},
                 {"message", options.message},
                 {"text", stored},
                 {"cut", cut},
                 {"messages", session.MessagesAsJson()}},
                std::to_string(options.message) + "\t" + stored + "\n");
}

}  // namespace vendlingua::cli
