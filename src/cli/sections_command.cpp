#include <algorithm>

#include "cli/commands.h"
#include "core/platform/errors.h"

namespace vendlingua::cli {
namespace {

namespace fs = std::filesystem;

void RefuseToOverwriteInput(const fs::path& input, const fs::path& base) {
  for (const char* suffix : {".mtx", ".SA0", ".SA1", ".SA2", ".SA3", ".SA4"}) {
    fs::path output = base;
    output += suffix;
    RefuseToOverwrite(input, output);
  }
}

}  // namespace

void RunSections(Session& session, const SectionsOptions& options) {
  const fs::path base =
      options.output.empty() ? SectionBase(options.file) : fs::path(options.output);
  RefuseToOverwriteInput(options.file, base);
  SectionFiles& sections = session.engine.section_files;
  if (!sections.ReadBack(options.file, session.dialogs, session.engine.workspace.ui_text)) {
    throw CommandFailed(options.file + ": was not read to its end, no section file was written");
  }
  const auto& used = sections.SectionUsed();
  if (std::all_of(used.begin(), used.end(), [](std::int32_t length) { return length == 0; })) {
    throw CommandFailed(options.file + ": holds no S2 record of the board's sections");
  }
  Json written = Json::array();
  std::string text;
  for (const fs::path& path : sections.WriteSections(base)) {
    written.push_back(PathText(path));
    text += PathText(path) + "\n";
  }
  session.Print({{"written", written}, {"messages", session.MessagesAsJson()}}, text);
}

}  // namespace vendlingua::cli
