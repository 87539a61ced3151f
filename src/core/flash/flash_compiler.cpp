#include "core/flash/flash_compiler.h"

#include <fmt/format.h>

#include "core/flash/identified_copy.h"
#include "core/flash/kept_files.h"
#include "core/formats/copy_header.h"
#include "core/formats/mes_file.h"
#include "core/formats/srecord.h"
#include "core/formats/text_lines.h"
#include "core/platform/errors.h"
#include "core/platform/files.h"

namespace vendlingua {
namespace {

namespace fs = std::filesystem;

void Write(const fs::path& path, std::initializer_list<std::string_view> pieces,
           CompileOutcome& outcome) {
  WriteFile(path, pieces);
  outcome.written.push_back(path);
}

std::string FirstLine(const std::string& records) {
  const auto line = TextLines(records).Next();
  return line ? std::string(line->text) : std::string();
}

// The name that a dialog starts with is no choice; nor is that of the other family's dialog.
bool IsInitialName(FilePurpose purpose, const fs::path& name) {
  return purpose == FilePurpose::kIdentifiedCopy ? name == "*.MSX"
                                                 : name == "*.MHX" || name == "*.hex";
}

}  // namespace

std::string FlashExtension(const MessageSet& set) {
  return set.HeaderBit1 != kFalse ? "MHX" : "hex";
}

FlashCompiler::FlashCompiler(Workspace& workspace, Dialogs& dialogs, CompilerState& compiler,
                             FlashImage& flash_image, SectionFiles& section_files)
    : workspace_(workspace),
      dialogs_(dialogs),
      compiler_(compiler),
      flash_image_(flash_image),
      section_files_(section_files) {}

CompileOutcome FlashCompiler::Compile() {
  CompileOutcome outcome;
  workspace_.folders.current = workspace_.folders.program;
  SetBusy(true);
  try {
    const fs::path flash_file = AskPath(FilePurpose::kFlashFile, UiTextId::kFlashFileTitle,
                                        FlashExtension(workspace_.set), true);
    if (flash_file.empty()) {
      SetBusy(false);
      return outcome;
    }
    compiler_.hourglass = true;
    Run({flash_file, NamedCopy(flash_file)}, outcome);
  } catch (...) {
    SetBusy(false);
    throw;
  }
  if (outcome.completed) {
    SetBusy(false);
  }
  return outcome;
}

void FlashCompiler::Run(CompileOutputs outputs, CompileOutcome& outcome) {
  CheckOutputs(outputs);
  if (workspace_.set.IsMsx()) {
    CompileMsx(outputs, outcome);
  } else if (workspace_.set.IsMes() && !CompileMes(outputs, outcome)) {
    return;
  }
  if (IsMhxFamily()) {
    WriteSectionFiles(outputs, outcome);
  }
  outcome.completed = true;
}

// Empty when nothing was chosen.
fs::path FlashCompiler::AskPath(FilePurpose purpose, UiTextId title, const std::string& extension,
                                bool overwrite_prompt) {
  const std::string wildcard = "*." + extension;
  const auto path = dialogs_.SaveFile({.purpose = purpose,
                                       .title = workspace_.ui_text[title],
                                       .initial_name = wildcard,
                                       .default_extension = extension,
                                       .filters = {{"Flash File", extension}},
                                       .overwrite_prompt = overwrite_prompt,
                                       .folder = workspace_.folders.current});
  if (!path || path->empty() || IsInitialName(purpose, path->filename())) {
    return {};
  }
  workspace_.folders.current = path->parent_path();
  return *path;
}

void FlashCompiler::CheckOutputs(const CompileOutputs& outputs) const {
  std::vector<KeptFile> kept = {{workspace_.set.CurrentFileName, UiTextId::kIsMessageFile}};
  RefuseToReplace(kept, outputs.flash_file);
  kept.push_back({outputs.flash_file, UiTextId::kIsFlashFile});
  if (outputs.copy) {
    RefuseToReplace(kept, *outputs.copy);
    kept.push_back({*outputs.copy, UiTextId::kIsIdentifiedCopy});
  }
  if (IsMhxFamily()) {
    for (const fs::path& path : SectionFiles::Paths(SectionBase(outputs.flash_file))) {
      RefuseToReplace(kept, path);
    }
  }
}

// The copy that is named after the flash file; nothing when the user is asked for its name, and
// when there will be none.
std::optional<fs::path> FlashCompiler::NamedCopy(const fs::path& flash_file) const {
  const MessageSet& set = workspace_.set;
  const auto name = CopyNameFor(flash_file);
  if (!set.IsMes() || set.LangCount == kMsxLanguages || !name ||
      !HeaderFromBaseName(name->base_name)) {
    return std::nullopt;
  }
  const std::string file_name = name->base_name + name->extension;
  return workspace_.folders.current / std::u8string(file_name.begin(), file_name.end());
}

// False when the run stops here.
bool FlashCompiler::CompileMes(CompileOutputs& outputs, CompileOutcome& outcome) {
  const MessageSet& set = workspace_.set;
  dialogs_.LetPendingEventsRun();
  flash_image_ = NamingFile(set.CurrentFileName, [&] { return PackedImage(outcome); });
  const std::string records =
      FormatSRecords(flash_image_.Bytes(), set.MemStart, SRecordTypeFor(set.MemStart));
  Write(outputs.flash_file, {records}, outcome);
  return set.LangCount == kMsxLanguages ? WriteNineLanguageCopy(outputs, records, outcome)
                                        : WriteNamedCopy(outputs, records, outcome);
}

// The image of this run; that of the last one stays if an error comes up.
FlashImage FlashCompiler::PackedImage(CompileOutcome& outcome) const {
  const MessageSet& set = workspace_.set;
  const std::string content = ReadFile(set.CurrentFileName);
  FlashImage image = flash_image_;
  image.MatchTo(set);
  for (const int language : image.Pack(set, content, compiler_.TickedLanguages())) {
    const std::string name = ReadMesNames(set, content).at(static_cast<std::size_t>(language));
    outcome.short_languages.push_back({language, name});
  }
  if (set.HeaderBit0 == kFalse) {
    image.WriteLanguageNames(set);
  }
  return image;
}

// The records of a ".MSX" file without its own header: always 4095 lines, empty ones behind its
// end.
void FlashCompiler::CompileMsx(const CompileOutputs& outputs, CompileOutcome& outcome) {
  constexpr std::size_t kMostLines = 4099;
  const std::string content = ReadFile(workspace_.set.CurrentFileName);
  TextLines lines(content);
  lines.Next();
  std::string records;
  std::size_t written = 0;
  while (const auto line = lines.Next()) {
    if (lines.count() > kMostLines) {
      throw FileError(workspace_.set.CurrentFileName, UiTextId::kTooManyLines, kMostLines);
    }
    if (written < kMsxLinesCompiled) {
      records.append(line->text).append(kCrLf);
      ++written;
    }
  }
  for (; written < kMsxLinesCompiled; ++written) {
    records += kCrLf;
  }
  Write(outputs.flash_file, {records}, outcome);
}

// False when the run stops here.
bool FlashCompiler::WriteNineLanguageCopy(CompileOutputs& outputs, const std::string& records,
                                          CompileOutcome& outcome) {
  const fs::path copy =
      AskPath(FilePurpose::kIdentifiedCopy, UiTextId::kIdentifiedCopyTitle, "MSX", false);
  if (copy.empty()) {
    return false;
  }
  outputs.copy = copy;
  CheckOutputs(outputs);
  const std::string header = HeaderFromFirstRecord(FirstLine(records));
  Write(copy, {header, kCrLf, records, kLastCopyLine, kCrLf}, outcome);
  return true;
}

// False when the run stops here.
bool FlashCompiler::WriteNamedCopy(const CompileOutputs& outputs, const std::string& records,
                                   CompileOutcome& outcome) {
  const auto name = CopyNameFor(outputs.flash_file);
  if (!name) {
    dialogs_.MessageBox(
        {MessageIcon::kCritical, "Impossibile creare il file MSX o il file HSX", "Errore"});
    return false;
  }
  const auto header = HeaderFromBaseName(name->base_name);
  if (!header || !outputs.copy) {
    constexpr const char* kText =
        "                     The file .MSX/.HSX will not created \n\n"
        " Name File : {}.MHX .HSX not correct (Es:FW0000AA)";
    dialogs_.MessageBox({MessageIcon::kInformation, fmt::format(kText, name->base_name), "Info"});
    return true;
  }
  CheckOutputs(outputs);
  Write(*outputs.copy, {*header, kCrLf, records}, outcome);
  return true;
}

void FlashCompiler::WriteSectionFiles(const CompileOutputs& outputs, CompileOutcome& outcome) {
  section_files_.ReadBack(outputs.flash_file, dialogs_, workspace_.ui_text);
  CheckOutputs(outputs);
  for (const fs::path& path : section_files_.WriteSections(SectionBase(outputs.flash_file))) {
    outcome.written.push_back(path);
  }
}

void FlashCompiler::SetBusy(bool busy) {
  compiler_.busy = busy;
  compiler_.hourglass = compiler_.hourglass && busy;
}

}  // namespace vendlingua
