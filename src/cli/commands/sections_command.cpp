#include <algorithm>
#include <memory>
#include <string>

#include "cli/commands.h"
#include "cli/options.h"
#include "core/flash/kept_files.h"
#include "core/platform/errors.h"
#include "core/platform/files.h"
#include "core/platform/path_of.h"

namespace vendlingua::cli {
namespace {

struct SectionsOptions {
  std::string file;
  std::string output;
};

namespace fs = std::filesystem;

void RefuseToReplaceInput(const fs::path& input, const fs::path& base) {
  const std::vector<KeptFile> kept = {{FilePlace(input), UiTextId::kIsReadFile}};
  for (const fs::path& path : SectionFiles::Paths(base)) {
    RefuseToReplace(kept, path);
  }
}

// An empty flash file has empty sections; any other without a byte for them is the wrong file.
bool IsWrongFile(const std::string& content, const SectionFiles& sections) {
  const auto& used = sections.SectionUsed();
  return !content.empty() &&
         std::all_of(used.begin(), used.end(), [](std::int32_t length) { return length == 0; });
}

void RunSections(Session& session, const SectionsOptions& options) {
  const fs::path file = PathOf(options.file);
  const fs::path base = options.output.empty() ? SectionBase(file) : PathOf(options.output);
  RefuseToReplaceInput(file, base);
  SectionFiles& sections = session.engine.section_files;
  const std::string content = ReadFile(file);
  if (!sections.ReadBack(file, content, session.dialogs, session.engine.workspace.ui_text)) {
    throw CommandFailed(options.file + ": was not read to its end, no section file was written");
  }
  if (IsWrongFile(content, sections)) {
    throw CommandFailed(options.file + ": holds no byte of the board's sections in S2 records");
  }
  Json written = Json::array();
  std::string text;
  for (const fs::path& path : sections.WriteSections(base)) {
    written.push_back(PathText(path));
    text += PathText(path) + "\n";
  }
  session.Print({{"written", written}, {"notices", session.Notices()}}, text);
}

}  // namespace

void AddSections(CLI::App& app, Session& session) {
  const auto options = std::make_shared<SectionsOptions>();
  CLI::App* command =
      app.add_subcommand("sections", "Cut a flash file into the section files of the board.");
  command->footer("Example: vendlingua-cli sections FW0417AB.MHX --output out/FW0417AB");
  command->add_option("FILE", options->file, "flash file (.MHX)")->required();
  command
      ->add_option("--output", options->output,
                   "path of the section files without extension, that of FILE if not given")
      ->type_name("FILE");
  command->callback([&session, options] { RunSections(session, *options); });
}

}  // namespace vendlingua::cli
