#include "core/flash/flash_compiler.h"

#include <system_error>

#include "core/flash/identified_copy.h"
#include "core/formats/copy_header.h"
#include "core/formats/srecord.h"
#include "core/formats/text_lines.h"
#include "core/platform/errors.h"
#include "core/platform/files.h"

namespace vendlingua {
namespace {

namespace fs = std::filesystem;

// A copy of this many languages is a ".MSX" message file, and the user says where it goes.
constexpr int kLanguagesOfMsxFile = 9;

void Write(const fs::path& path, std::initializer_list<std::string_view> pieces,
           CompileOutcome& outcome) {
  WriteFile(path, pieces);
  outcome.written.push_back(path);
}

std::string FirstLine(const std::string& records) {
  const auto line = TextLines(records).Next();
  return line ? std::string(line->text) : std::string();
}

}  // namespace

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
    const fs::path flash_file =
        AskPath(FilePurpose::kFlashFile, IsMhxFamily() ? "MHX" : "hex", true);
    if (flash_file.empty()) {
      SetBusy(false);
      return outcome;
    }
    compiler_.hourglass = true;
    Run(flash_file, outcome);
  } catch (...) {
    SetBusy(false);
    throw;
  }
  if (outcome.completed) {
    SetBusy(false);
  }
  return outcome;
}

void FlashCompiler::Run(const fs::path& flash_file, CompileOutcome& outcome) {
  if (workspace_.set.IsMsx()) {
    CompileMsx(flash_file, outcome);
  } else if (workspace_.set.IsMes() && !CompileMes(flash_file, outcome)) {
    return;
  }
  if (IsMhxFamily()) {
    WriteSectionFiles(flash_file, outcome);
  }
  outcome.completed = true;
}

// Empty when nothing was chosen.
fs::path FlashCompiler::AskPath(FilePurpose purpose, const std::string& extension,
                                bool overwrite_prompt) {
  const std::string wildcard = "*." + extension;
  fs::path path = dialogs_.SaveFile({.purpose = purpose,
                                     .initial_name = wildcard,
                                     .default_extension = extension,
                                     .filter = "Flash File(" + wildcard + ")|" + wildcard,
                                     .overwrite_prompt = overwrite_prompt,
                                     .folder = workspace_.folders.current});
  if (path == wildcard) {
    return {};
  }
  if (!path.empty()) {
    RefuseSource(path);
    workspace_.folders.current = path.parent_path();
  }
  return path;
}

void FlashCompiler::RefuseSource(const fs::path& path) const {
  std::error_code not_there;
  if (fs::equivalent(path, workspace_.set.CurrentFileName, not_there)) {
    throw FileError(path, "is the message file that is being compiled; choose another name");
  }
}

// False when the run stops here.
bool FlashCompiler::CompileMes(const fs::path& flash_file, CompileOutcome& outcome) {
  const MessageSet& set = workspace_.set;
  dialogs_.LetPendingEventsRun();
  flash_image_ = NamingFile(set.CurrentFileName, [this] { return PackedImage(); });
  const std::string records =
      FormatSRecords(flash_image_.Bytes(), set.MemStart, SRecordTypeFor(set.MemStart));
  Write(flash_file, {records}, outcome);
  return WriteCopy(flash_file, records, outcome);
}

// The image of this run; that of the last one stays if an error comes up.
FlashImage FlashCompiler::PackedImage() const {
  const MessageSet& set = workspace_.set;
  FlashImage image = flash_image_;
  image.MatchTo(set);
  image.Pack(set, ReadFile(set.CurrentFileName), compiler_.TickedLanguages());
  if (set.HeaderBit0 == kFalse) {
    image.WriteLanguageNames(set);
  }
  return image;
}

// The records of a ".MSX" file without its own header: always 4095 lines, empty ones behind its
// end.
void FlashCompiler::CompileMsx(const fs::path& flash_file, CompileOutcome& outcome) {
  constexpr std::size_t kLinesWritten = 4095;
  constexpr std::size_t kMostLines = 4099;
  const std::string content = ReadFile(workspace_.set.CurrentFileName);
  TextLines lines(content);
  lines.Next();
  std::string records;
  std::size_t written = 0;
  while (const auto line = lines.Next()) {
    if (lines.count() > kMostLines) {
      throw FileError(
          workspace_.set.CurrentFileName,
          "the file has more than " + std::to_string(kMostLines) + " lines; nothing was written");
    }
    if (written < kLinesWritten) {
      records.append(line->text).append(kCrLf);
      ++written;
    }
  }
  for (; written < kLinesWritten; ++written) {
    records += kCrLf;
  }
  Write(flash_file, {records}, outcome);
}

// False when the run stops here.
bool FlashCompiler::WriteCopy(const fs::path& flash_file, const std::string& records,
                              CompileOutcome& outcome) {
  return workspace_.set.LangCount == kLanguagesOfMsxFile
             ? WriteNineLanguageCopy(records, outcome)
             : WriteNamedCopy(flash_file, records, outcome);
}

bool FlashCompiler::WriteNineLanguageCopy(const std::string& records, CompileOutcome& outcome) {
  const fs::path copy = AskPath(FilePurpose::kIdentifiedCopy, "MSX", false);
  if (copy.empty()) {
    return false;
  }
  const std::string header = HeaderFromFirstRecord(FirstLine(records));
  Write(copy, {header, kCrLf, records, kLastCopyLine, kCrLf}, outcome);
  return true;
}

bool FlashCompiler::WriteNamedCopy(const fs::path& flash_file, const std::string& records,
                                   CompileOutcome& outcome) {
  const auto name = CopyNameFor(flash_file);
  if (!name) {
    dialogs_.MessageBox(
        {MessageIcon::kCritical, "Impossibile creare il file MSX o il file HSX", "Errore"});
    return false;
  }
  const auto header = HeaderFromBaseName(name->base_name);
  if (!header) {
    dialogs_.MessageBox({MessageIcon::kInformation,
                         "                     The file .MSX/.HSX will not created \n\n"
                         " Name File : " +
                             name->base_name + ".MHX .HSX not correct (Es:FW0000AA)",
                         "Info"});
    return true;
  }
  const std::string file_name = name->base_name + name->extension;
  const fs::path copy =
      workspace_.folders.current / fs::path(std::u8string(file_name.begin(), file_name.end()));
  RefuseSource(copy);
  Write(copy, {*header, kCrLf, records}, outcome);
  return true;
}

void FlashCompiler::WriteSectionFiles(const fs::path& flash_file, CompileOutcome& outcome) {
  section_files_.ReadBack(flash_file, dialogs_, workspace_.ui_text);
  for (const fs::path& path : section_files_.WriteSections(SectionBase(flash_file))) {
    outcome.written.push_back(path);
  }
}

void FlashCompiler::SetBusy(bool busy) {
  compiler_.busy = busy;
  compiler_.hourglass = compiler_.hourglass && busy;
}

}  // namespace vendlingua
