#include <memory>
#include <optional>
#include <sstream>
#include <string>

#include "cli/address_text.h"
#include "cli/commands.h"
#include "cli/flash_info.h"
#include "cli/options.h"
#include "core/flash/flash_contents.h"
#include "core/formats/copy_header.h"
#include "core/formats/flash_file.h"
#include "core/formats/message_file.h"
#include "core/formats/msx_file.h"
#include "core/formats/text_lines.h"
#include "core/platform/files.h"
#include "core/platform/path_of.h"

namespace vendlingua::cli {
namespace {

struct InfoOptions {
  std::string file;
  std::string dimensions;  ///< message file of the board of a flash file
};

Json LanguagesAsJson(const MessageSet& set) {
  Json languages = Json::array();
  for (std::size_t i = 0; i < set.language_names.size(); ++i) {
    languages.push_back({{"index", i}, {"name", set.language_names[i]}});
  }
  return languages;
}

std::string InfoAsText(const Json& info) {
  std::ostringstream text;
  for (const auto& [key, value] : info.items()) {
    if (key == "languages") {
      for (const Json& language : value) {
        text << "language " << language["index"] << ": " << language["name"].get<std::string>()
             << '\n';
      }
    } else {
      text << key << ": " << (value.is_string() ? value.get<std::string>() : FieldText(key, value))
           << '\n';
    }
  }
  return text.str();
}

void PrintMessageFile(Session& session, const InfoOptions& options) {
  if (!options.dimensions.empty()) {
    throw WrongUsage("--dimensions is for flash files; a message file has its own");
  }
  if (session.display) {
    throw WrongUsage("--display is for flash files; of a message file no text is shown");
  }
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
  session.Print(info, InfoAsText(info));
}

void PrintFlashFile(Session& session, const InfoOptions& options) {
  const FlashFile file = ReadFlashFile(PathOf(options.file));
  const std::optional<MessageSet> dimensions =
      options.dimensions.empty() ? KnownDimensions(file)
                                 : std::optional(ReadMessageFile(PathOf(options.dimensions)));
  if (session.display && !dimensions) {
    throw WrongUsage("--display goes with --dimensions; the board of " + options.file +
                     " is not known");
  }
  PrintFlashInfo(session, options.file, file, dimensions);
}

// The identified copy of a firmware whose .MSX files are no message files.
bool IsForeignCopy(const std::filesystem::path& path) {
  const std::string content = ReadFile(path);
  const auto first_line = TextLines(content).Next();
  return first_line && IsCopyHeader(first_line->text) && !IsMsxHeader(first_line->text);
}

bool HoldsFlashImage(const InfoOptions& options) {
  const std::string type = MessageFileType(PathOf(options.file));
  if (type == kMesType) {
    return false;
  }
  if (type == kMsxType) {
    return !options.dimensions.empty() || IsForeignCopy(PathOf(options.file));
  }
  if (!BeginsWithRecord(PathOf(options.file))) {
    throw CommandFailed(options.file + ": is no message file and no file of S-records");
  }
  return true;
}

void RunInfo(Session& session, const InfoOptions& options) {
  if (HoldsFlashImage(options)) {
    PrintFlashFile(session, options);
  } else {
    PrintMessageFile(session, options);
  }
}

}  // namespace

void AddInfo(CLI::App& app, Session& session) {
  const auto options = std::make_shared<InfoOptions>();
  CLI::App* command = app.add_subcommand("info", "Show what a message file or a flash file holds.");
  command->footer(
      "A .MSX file is a flash file where --dimensions is given, or where it is the identified copy "
      "of\n"
      "a firmware that has no .MSX message files.\n"
      "Example: vendlingua-cli info FW0417AB.MES --json");
  command->add_option("FILE", options->file, "message file or flash file")->required();
  command->add_option("--dimensions", options->dimensions,
                      "message file of the board, to tell slots and languages of a flash file");
  AddDisplay(*command, session);
  command->callback([&session, options] { RunInfo(session, *options); });
}

}  // namespace vendlingua::cli
