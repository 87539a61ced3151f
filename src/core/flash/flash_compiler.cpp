#include "core/flash/flash_compiler.h"

#include <fmt/format.h>

#include <utility>

#include "core/flash/identified_copy.h"
#include "core/flash/kept_files.h"
#include "core/formats/copy_header.h"
#include "core/formats/file_merge.h"
#include "core/formats/mes_file.h"
#include "core/formats/srecord.h"
#include "core/formats/srecord_check.h"
#include "core/formats/text_lines.h"
#include "core/platform/errors.h"
#include "core/platform/files.h"
#include "core/platform/in_place_change.h"

namespace vendlingua {
namespace {

namespace fs = std::filesystem;

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
  Work work;
  workspace_.folders.current = workspace_.folders.program;
  SetBusy(true);
  try {
    const fs::path flash_file = AskPath(FilePurpose::kFlashFile, UiTextId::kFlashFileTitle,
                                        FlashExtension(workspace_.set), true);
    if (flash_file.empty()) {
      SetBusy(false);
      return work.outcome;
    }
    compiler_.hourglass = true;
    work.outputs = {flash_file, NamedCopy(flash_file)};
    Run(work);
  } catch (...) {
    SetBusy(false);
    throw;
  }
  if (work.outcome.completed) {
    SetBusy(false);
  }
  return work.outcome;
}

void FlashCompiler::Run(Work& work) {
  CheckOutputs(work.outputs);
  bool goes_on = true;
  if (workspace_.set.IsMsx()) {
    CompileMsx(work);
  } else if (workspace_.set.IsMes()) {
    goes_on = CompileMes(work);
  } else if (IsMhxFamily()) {
    // Nothing is compiled; the sections are those of the flash file that is there.
    work.records = ReadFile(work.outputs.flash_file, kSRecordFileLimit);
  }
  if (goes_on && IsMhxFamily()) {
    AddSectionFiles(work);
  }
  work.files.Commit();
  work.outcome.completed = goes_on;
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
  std::vector<KeptFile> kept = {
      {FilePlace(workspace_.set.CurrentFileName), UiTextId::kIsMessageFile}};
  kept.push_back({RefuseToReplace(kept, outputs.flash_file), UiTextId::kIsFlashFile});
  RequireReplaceable(outputs.flash_file);
  if (outputs.copy) {
    kept.push_back({RefuseToReplace(kept, *outputs.copy), UiTextId::kIsIdentifiedCopy});
    RequireReplaceable(*outputs.copy);
  }
  if (IsMhxFamily()) {
    for (const fs::path& path : SectionFiles::Paths(SectionBase(outputs.flash_file))) {
      RefuseToReplace(kept, path);
      RequireReplaceable(path);
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
bool FlashCompiler::CompileMes(Work& work) {
  const MessageSet& set = workspace_.set;
  dialogs_.LetPendingEventsRun();
  flash_image_ =
      NamingFile(set.CurrentFileName, [this, &work] { return PackedImage(work.outcome); });
  work.records = FormatSRecords(flash_image_.Bytes(), set.MemStart, SRecordTypeFor(set.MemStart));
  work.Add(work.outputs.flash_file, {work.records});
  return set.LangCount == kMsxLanguages ? AddNineLanguageCopy(work) : AddNamedCopy(work);
}

// The image of this run; that of the last one stays if an error comes up.
FlashImage FlashCompiler::PackedImage(CompileOutcome& outcome) const {
  const std::string content = ReadSharedFile(workspace_.set.CurrentFileName);
  MessageSet set = workspace_.set;
  TakeOverFile(set, content);
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
void FlashCompiler::CompileMsx(Work& work) {
  constexpr std::size_t kMostLines = 4099;
  const std::string content = ReadSharedFile(workspace_.set.CurrentFileName);
  TextLines lines(content);
  lines.Next();
  std::size_t written = 0;
  while (const auto line = lines.Next()) {
    if (lines.count() > kMostLines) {
      throw FileError(workspace_.set.CurrentFileName, UiTextId::kTooManyLines, kMostLines);
    }
    if (written < kMsxLinesCompiled) {
      if (std::string damage = DamageOf(line->text); !damage.empty()) {
        work.outcome.damaged_records.push_back({lines.count(), std::move(damage)});
      }
      work.records.append(line->text).append(kCrLf);
      ++written;
    }
  }
  for (; written < kMsxLinesCompiled; ++written) {
    work.records += kCrLf;
  }
  work.Add(work.outputs.flash_file, {work.records});
}

// False when the run stops here.
bool FlashCompiler::AddNineLanguageCopy(Work& work) {
  const fs::path copy =
      AskPath(FilePurpose::kIdentifiedCopy, UiTextId::kIdentifiedCopyTitle, "MSX", false);
  if (copy.empty()) {
    return false;
  }
  work.outputs.copy = copy;
  CheckOutputs(work.outputs);
  const std::string header = HeaderFromFirstRecord(FirstLine(work.records));
  work.Add(copy, {header, kCrLf, work.records, kLastCopyLine, kCrLf});
  return true;
}

// False when the run stops here.
bool FlashCompiler::AddNamedCopy(Work& work) {
  const auto name = CopyNameFor(work.outputs.flash_file);
  if (!name) {
    dialogs_.MessageBox(
        {MessageIcon::kCritical, "Impossibile creare il file MSX o il file HSX", "Errore"});
    return false;
  }
  const auto header = HeaderFromBaseName(name->base_name);
  if (!header || !work.outputs.copy) {
    constexpr const char* kText =
        "                     The file .MSX/.HSX will not created \n\n"
        " Name File : {}.MHX .HSX not correct (Es:FW0000AA)";
    dialogs_.MessageBox({MessageIcon::kInformation, fmt::format(kText, name->base_name), "Info"});
    return true;
  }
  CheckOutputs(work.outputs);
  work.Add(*work.outputs.copy, {*header, kCrLf, work.records});
  return true;
}

void FlashCompiler::AddSectionFiles(Work& work) {
  const fs::path& flash_file = work.outputs.flash_file;
  section_files_.ReadBack(flash_file, work.records, dialogs_, workspace_.ui_text);
  CheckOutputs(work.outputs);
  for (const fs::path& path : section_files_.AddSections(SectionBase(flash_file), work.files)) {
    work.outcome.written.push_back(path);
  }
}

void FlashCompiler::SetBusy(bool busy) {
  compiler_.busy = busy;
  compiler_.hourglass = compiler_.hourglass && busy;
}

}  // namespace vendlingua
