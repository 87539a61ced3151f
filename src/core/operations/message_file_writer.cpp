#include "core/operations/message_file_writer.h"

#include <algorithm>
#include <string_view>
#include <system_error>

#include "core/formats/mes_file.h"
#include "core/formats/mes_layout.h"
#include "core/formats/mes_patch.h"
#include "core/formats/msx_lines.h"
#include "core/platform/errors.h"
#include "core/platform/files.h"

namespace vendlingua {
namespace {

namespace fs = std::filesystem;

// What stands behind the first `size` bytes of a file that a new one replaces: it stays.
std::string TailOf(const fs::path& path, std::size_t size) {
  std::error_code not_there;
  if (!fs::is_regular_file(path, not_there)) {
    return {};
  }
  const std::string content = ReadFile(path);
  return content.substr(std::min(size, content.size()));
}

}  // namespace

MessageFileWriter::MessageFileWriter(Workspace& workspace, Dialogs& dialogs, Editing& editing,
                                     MessageFileReader& reader)
    : workspace_(workspace), dialogs_(dialogs), editing_(editing), reader_(reader) {}

SaveOutcome MessageFileWriter::Save() {
  SaveOutcome outcome = SaveUnderTrap();
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
    outcome = {SaveOutcome::kFailed, error.In(workspace_.ui_text)};
  } catch (const Error& error) {
    outcome = {SaveOutcome::kFailed, error.In(workspace_.ui_text)};
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
      dialogs_.MessageBox({MessageIcon::kCritical, error.In(ui_text), "ERROR"});
    }
  }
}

bool MessageFileWriter::NameIsTaken(const NameField& name) const {
  const auto& names = workspace_.set.language_names;
  return !names.empty() && std::find(names.begin() + 1, names.end(), name.Caption()) != names.end();
}

// Any display type is stored as 0 while no destination is open.
std::uint8_t MessageFileWriter::HeaderFlags() const {
  const MessageSet& set = workspace_.set;
  return MesFlags(set, set.DestinationIsOpen() ? set.DisplayType : 0);
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

  const std::string content = BuildNewMes(set, new_name, HeaderFlags());
  WriteFile(path, {content, TailOf(path, content.size())});
  set.language_names = {std::string(kReferenceName)};
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
      throw FileError(set.CurrentFileName, UiTextId::kFileHolds100Languages);
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
  std::error_code not_told;  // a file that is gone is found when it is opened
  const std::uintmax_t file_size = fs::file_size(set.CurrentFileName, not_told);
  ApplyPatches(set.CurrentFileName,
               BuildMesPatch(set, set.DestLang, name, HeaderFlags(), file_size));
}

void MessageFileWriter::PatchMsx() {
  MessageSet& set = workspace_.set;
  editing_.StoreCurrentMessage();
  set.Modified = kFalse;
  ApplyPatches(set.CurrentFileName, {BuildMsxLines(set, ReadFile(set.CurrentFileName))});
}

SaveOutcome MessageFileWriter::SaveAs() {
  MessageSet& set = workspace_.set;
  if (!set.IsMes() && !set.IsMsx()) {
    throw Error(UiTextId::kNoFileToSaveAs);
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
