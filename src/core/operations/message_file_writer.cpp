#include "core/operations/message_file_writer.h"

#include <algorithm>
#include <string_view>
#include <system_error>

#include "core/formats/hex.h"
#include "core/formats/mes_file.h"
#include "core/formats/msx_file.h"
#include "core/formats/msx_lines.h"
#include "core/platform/errors.h"
#include "core/platform/files.h"

namespace vendlingua {
namespace {

namespace fs = std::filesystem;

// File positions are counted from 1.
constexpr std::int64_t kFlagsPosition = 3;
constexpr std::int64_t kLastMsgPosition = 9;
constexpr std::string_view kReferenceName = "Default             ";
constexpr std::string_view kReferenceCaption = "Default";

std::string MessageBytes(const DisplayText& text, std::size_t width) {
  return BytesFromCodes(text.First(width));
}

// The origin texts of one language block of a new file. Slots that the set has no text for are
// blank.
std::string OriginBlock(const MessageSet& set) {
  std::string block;
  for (std::size_t i = 0; i <= set.LangStride; ++i) {
    block +=
        MessageBytes(i < set.OriginText.size() ? set.OriginText[i] : DisplayText(), set.Width());
  }
  return block;
}

// What stands behind the first `size` bytes of a file that a new one replaces: it stays.
std::string TailOf(const fs::path& path, std::size_t size) {
  std::error_code not_there;
  if (!fs::is_regular_file(path, not_there)) {
    return {};
  }
  const std::string content = ReadFile(path);
  return content.substr(std::min(size, content.size()));
}

// A file that was cut by another program: with a patch alone it would be no message file any more.
void RequireHeader(const MessageSet& set, std::uintmax_t file_size) {
  if (file_size < kMesHeaderBytes) {
    throw FileError(set.CurrentFileName,
                    "has only " + std::to_string(file_size) +
                        " bytes since it was opened, less than its header: save it under another "
                        "name");
  }
}

// A block that does not hold `LastMsg` + 1 messages would be written over the next language.
void RefuseToOverwriteNextBlock(const MessageSet& set, std::int64_t file_size) {
  const std::int64_t end = MesMessageOffset(set, set.DestLang, set.MessageCount());
  const std::int64_t next = MesBlockOffset(set, set.DestLang + 1);
  if (end > next && file_size > next) {
    throw FileError(set.CurrentFileName,
                    "a language block of " +
                        std::to_string(static_cast<std::int64_t>(set.BlockLength)) +
                        " bytes does not hold " + std::to_string(set.MessageCount()) +
                        " messages: saving would overwrite the next language");
  }
}

}  // namespace

MessageFileWriter::MessageFileWriter(Workspace& workspace, Dialogs& dialogs, Editing& editing,
                                     MessageFileReader& reader)
    : workspace_(workspace), dialogs_(dialogs), editing_(editing), reader_(reader) {}

SaveOutcome MessageFileWriter::Save() {
  const SaveOutcome outcome = SaveUnderTrap();
  const UiText& ui_text = workspace_.ui_text;
  std::string& status = workspace_.window.status;
  if (outcome.result == SaveOutcome::kSaved) {
    status = ui_text[UiTextId::kSaved] + " " + PathText(workspace_.set.CurrentFileName);
  } else if (outcome.result == SaveOutcome::kFailed) {
    status = ui_text[UiTextId::kNotSaved] + " " + outcome.reason;
    workspace_.set.Modified = kFalse;
    workspace_.set.save_failed = true;
  }
  return outcome;
}

// One trap for the whole save: only a folder that is not there gets a box.
SaveOutcome MessageFileWriter::SaveUnderTrap() {
  Rollback rollback(workspace_);
  SaveOutcome outcome;
  try {
    MessageSet& set = workspace_.set;
    std::optional<NameField> new_name;
    if (set.DestLang == 0) {
      new_name = AskNewLanguageName();
    }
    outcome = Write(new_name);
    if (outcome.result == SaveOutcome::kSaved) {
      set.file_content = ReadFile(set.CurrentFileName);
      set.NoteSaved();
    }
    rollback.Keep();
  } catch (const FolderNotReadyError& error) {
    dialogs_.MessageBox({MessageIcon::kCritical, " Directory not ready", ""});
    outcome = {SaveOutcome::kFailed, error.what()};
  } catch (const Error& error) {
    outcome = {SaveOutcome::kFailed, error.what()};
  }
  return outcome;
}

SaveOutcome MessageFileWriter::Write(const std::optional<NameField>& new_name) {
  const MessageSet& set = workspace_.set;
  if (set.IsMes() && !set.FileIsThere()) {
    return WriteNewMes(new_name);
  }
  if (set.IsMes()) {
    PatchMes(new_name);
    return {};
  }
  if (set.IsMsx()) {
    PatchMsx();
    return {};
  }
  return {SaveOutcome::kNothingWritten, ""};
}

NameField MessageFileWriter::AskNewLanguageName() {
  const UiText& ui_text = workspace_.ui_text;
  for (;;) {
    const std::string answer =
        dialogs_.InputBox({InputPurpose::kNewLanguageName, ui_text[UiTextId::kNewLanguagePrompt],
                           ui_text[UiTextId::kNewLanguageTitle], ""});
    try {
      NameField name = NameField::FromAnswer(answer);
      if (name.IsBlank()) {
        dialogs_.MessageBox({MessageIcon::kCritical, ui_text[UiTextId::kNameIsBlank], ""});
      } else if (NameIsTaken(name)) {
        dialogs_.MessageBox({MessageIcon::kExclamation,
                             ui_text[UiTextId::kNameTakenBefore] + "\n" + name.PaddedText() + "\n" +
                                 ui_text[UiTextId::kNameTakenAfter],
                             ""});
      } else {
        return name;
      }
    } catch (const Error& error) {
      dialogs_.MessageBox({MessageIcon::kCritical, error.what(), "ERROR"});
    }
  }
}

bool MessageFileWriter::NameIsTaken(const NameField& name) const {
  const auto& names = workspace_.set.language_names;
  return !names.empty() && std::find(names.begin() + 1, names.end(), name.Caption()) != names.end();
}

// Display type 3, and any type while no destination is open, is stored as 0: boards in the field
// expect the file so.
std::uint8_t MessageFileWriter::HeaderFlags() const {
  constexpr std::size_t kStoredTypes = 3;
  const MessageSet& set = workspace_.set;
  const bool stored = set.DestinationIsOpen() && set.DisplayType < kStoredTypes;
  const std::size_t type = stored ? set.DisplayType : 0;
  return static_cast<std::uint8_t>(4 * type + (set.HeaderBit1 != kFalse ? 2U : 0U) +
                                   (set.HeaderBit0 != kFalse ? 1U : 0U));
}

// Empty when nothing was chosen.
fs::path MessageFileWriter::AskSavePath() {
  const std::string& type = workspace_.set.CurrentFileType;
  const std::string wildcard = "*" + type;
  const std::string extension = type.substr(1);
  const auto path = dialogs_.SaveFile({.purpose = FilePurpose::kSaveMessages,
                                       .title = "",
                                       .initial_name = wildcard,
                                       .default_extension = extension,
                                       .filters = {{"Message", extension}},
                                       .overwrite_prompt = true,
                                       .folder = workspace_.folders.current});
  if (!path || path == wildcard) {
    return {};
  }
  workspace_.folders.current = path->parent_path();
  return *path;
}

SaveOutcome MessageFileWriter::WriteNewMes(const std::optional<NameField>& new_name) {
  MessageSet& set = workspace_.set;
  const fs::path path = AskSavePath();
  if (path.empty()) {
    return {SaveOutcome::kNothingWritten, ""};
  }
  set.CurrentFileName = path;
  set.Modified = kFalse;

  const std::string origin_block = OriginBlock(set);
  std::string content = FormatMesHeader(set, HeaderFlags());
  content += kReferenceName;
  content += origin_block;
  if (new_name) {
    content += new_name->Bytes();
  }
  content += origin_block;
  WriteFile(path, {content, TailOf(path, content.size())});
  set.language_names = {std::string(kReferenceCaption)};
  if (new_name) {
    set.language_names.push_back(new_name->Caption());
  }
  return {};
}

void MessageFileWriter::PatchMes(const std::optional<NameField>& new_name) {
  MessageSet& set = workspace_.set;
  editing_.StoreCurrentMessage();
  if (new_name) {
    if (set.IsFull()) {
      throw FileError(set.CurrentFileName, "the file already holds 100 languages");
    }
    set.DestLang = static_cast<std::uint8_t>(set.language_names.size());
    set.language_names.push_back(new_name->Caption());
  }
  WriteMesBlock(new_name ? *new_name : NameField::FromCaption(set.language_names.at(set.DestLang)));
  if (new_name && set.phase == Phase::kDestinationUnnamed) {
    set.phase = Phase::kDestinationOpen;
  }
  if (new_name && set.phase >= Phase::kOriginChosen) {
    reader_.Reload();
  }
}

void MessageFileWriter::WriteMesBlock(const NameField& name) {
  MessageSet& set = workspace_.set;
  set.Modified = kFalse;
  set.BlockLength = MesBlockLength(set.LastCol, set.LangStride);
  const std::int64_t block = MesBlockOffset(set, set.DestLang) + 1;
  std::error_code no_such_file;
  const auto file_size = fs::file_size(set.CurrentFileName, no_such_file);
  if (!no_such_file) {
    RequireHeader(set, file_size);
    RefuseToOverwriteNextBlock(set, static_cast<std::int64_t>(file_size));
  }

  std::string content = name.Bytes();
  for (std::size_t i = 0; i < set.MessageCount(); ++i) {
    content += MessageBytes(set.DestText[i], set.Width());
  }
  PatchFile file(set.CurrentFileName, PatchFile::IfMissing::kFail);
  file.WriteAt(kFlagsPosition, HexField(HeaderFlags(), 2));
  file.WriteAt(kLastMsgPosition, HexField(set.LastMsg, 4));
  file.WriteAt(block, content);
  file.Close();
}

void MessageFileWriter::PatchMsx() {
  MessageSet& set = workspace_.set;
  editing_.StoreCurrentMessage();
  set.Modified = kFalse;
  const MsxLines lines = BuildMsxLines(set, ReadFile(set.CurrentFileName));
  PatchFile file(set.CurrentFileName, PatchFile::IfMissing::kFail);
  file.WriteAt(lines.position, lines.content);
  file.Close();
}

SaveOutcome MessageFileWriter::SaveAs() {
  MessageSet& set = workspace_.set;
  if (!set.IsMes() && !set.IsMsx()) {
    throw Error("No message file is open: open one before saving it under another name.");
  }
  const fs::path old_path = set.CurrentFileName;
  const fs::path path = AskSavePath();
  if (path.empty()) {
    return {SaveOutcome::kNothingWritten, ""};
  }
  std::error_code not_there;
  if (!fs::equivalent(old_path, path, not_there)) {
    WriteFile(path, ContentToCopy());
  }
  set.CurrentFileName = path;
  return Save();
}

// A file that is gone or shorter than it was is not what the user opened: the copy then begins as
// the file was.
std::string MessageFileWriter::ContentToCopy() const {
  try {
    std::string content = ReadFile(workspace_.set.CurrentFileName);
    if (content.size() >= workspace_.set.file_content.size()) {
      return content;
    }
  } catch (const FileError&) {
  }
  return workspace_.set.file_content;
}

bool MessageFileWriter::NonSave() {
  MessageSet& set = workspace_.set;
  if (set.Modified == kFalse && !set.save_failed) {
    return true;
  }
  const UiText& ui_text = workspace_.ui_text;
  const MessageAnswer answer =
      dialogs_.MessageBox({MessageIcon::kQuestion, ui_text[UiTextId::kUnsavedQuestion],
                           ui_text[UiTextId::kUnsavedTitle], MessageButtons::kYesNo});
  if (answer == MessageAnswer::kYes) {
    return Save().result != SaveOutcome::kFailed;
  }
  set.Modified = kFalse;
  set.save_failed = false;
  return true;
}

}  // namespace vendlingua
