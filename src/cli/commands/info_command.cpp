#include <memory>
#include <sstream>
#include <string>

#include "cli/commands.h"
#include "cli/options.h"
#include "core/platform/errors.h"

namespace vendlingua::cli {
namespace {

struct InfoOptions {
  std::string file;
};

Json LanguagesAsJson(const MessageSet& set) {
  Json languages = Json::array();
  for (std::size_t i = 0; i < set.language_names.size(); ++i) {
    languages.push_back({{"index", i}, {"name", set.language_names[i]}});
  }
  return languages;
}

std::string AsText(const Json& info) {
  std::ostringstream text;
  for (const auto& [key, value] : info.items()) {
    if (key == "languages") {
      for (const Json& language : value) {
        text << "language " << language["index"] << ": " << language["name"].get<std::string>()
             << '\n';
      }
    } else {
      text << key << ": " << (value.is_string() ? value.get<std::string>() : value.dump()) << '\n';
    }
  }
  return text.str();
}

void RunInfo(Session& session, const InfoOptions& options) {
  session.Open(options.file);
  const MessageSet& set = session.set();
  const Json info = {{"file", options.file},
                     {"type", set.CurrentFileType},
                     {"langCount", set.LangCount},
                     {"lastCol", set.LastCol},
                     {"headerBit1", set.HeaderBit1 != kFalse},
                     {"headerBit0", set.HeaderBit0 != kFalse},
                     {"displayType", set.DisplayType},
                     {"headerCount", set.HeaderCount},
                     {"lastMsg", set.LastMsg},
                     {"memStart", set.MemStart},
                     {"memLength", set.MemLength},
                     {"langStride", set.LangStride},
                     {"blockLength", static_cast<int>(set.BlockLength)},
                     {"languages", LanguagesAsJson(set)}};
  session.Print(info, AsText(info));
}

}  // namespace

void AddInfo(CLI::App& app, Session& session) {
  const auto options = std::make_shared<InfoOptions>();
  CLI::App* command =
      app.add_subcommand("info", "Show dimensions and languages of a message file.");
  command->footer("Example: vendlingua-cli info FW0417AB.MES --json");
  AddFile(*command, options->file);
  command->callback([&session, options] { RunInfo(session, *options); });
}

}  // namespace vendlingua::cli
