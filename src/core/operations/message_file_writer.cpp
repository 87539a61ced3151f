#include "core/operations/message_file_writer.h"

#include <algorithm>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

#include "core/formats/file_merge.h"
#include "core/formats/mes_file.h"
#include "core/formats/mes_layout.h"
#include "core/formats/mes_patch.h"
#include "core/formats/msx_lines.h"
#include "core/marks/marks_file.h"
#include "core/operations/new_language.h"
#include "core/platform/errors.h"
#include "core/platform/files.h"
#include "core/platform/in_place_change.h"
#include "core/platform/staged_file.h"

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
  if (outcome.result == SaveOutcome::kSaved) {
    TellSaved();
  } else if (outcome.result == SaveOutcome::kFailed) {
    workspace_.window.status = workspace_.ui_text[UiTextId::kNotSaved] + " " + outcome.reason;
    workspace_.set.Modified = kFalse;
    workspace_.set.save_failed = true;
    // Another program may have taken the name of a new language: the next save asks for one.
    workspace_.set.new_language_name.reset();
  }
  return outcome;
}

void MessageFileWriter::TellSaved() {
  workspace_.window.status =
      workspace_.ui_text[UiTextId::kSaved] + " " + PathText(workspace_.set.CurrentFileName);
}

// One trap for the whole save: only a folder that is not there gets a box.
SaveOutcome MessageFileWriter::SaveUnderTrap() {
  Rollback rollback(workspace_);
  SaveOutcome outcome;
  try {
    outcome = Write(std::nullopt);
    rollback.Keep();
  } catch (const FolderNotReadyError& error) {
    dialogs_.MessageBox({MessageIcon::kCritical, " Directory not ready", ""});
    outcome = {SaveOutcome::kFailed, error.In(workspace_.ui_text)};
  } catch (const Error& error) {
    outcome = {SaveOutcome::kFailed, error.In(workspace_.ui_text)};
  }
  return outcome;
}

SaveOutcome MessageFileWriter::Write(const CopyPath& copy) {
  MessageSet& set = workspace_.set;
  std::optional<NameField> new_name;
  if (set.DestLang == 0) {
    new_name =
        set.new_language_name ? set.new_language_name : AskNewLanguageName(workspace_, dialogs_);
  }
  SaveOutcome outcome;
  if (set.IsMes() && !set.FileIsThere()) {
    outcome = WriteNewMes(new_name, copy);
  } else if (set.IsMes()) {
    PatchMes(new_name, copy);
  } else if (set.IsMsx()) {
    PatchMsx(copy);
  } else {
    outcome.result = SaveOutcome::kNothingWritten;
  }
  if (outcome.result == SaveOutcome::kSaved) {
    set.NoteSaved();
  }
  return outcome;
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

SaveOutcome MessageFileWriter::WriteNewMes(const std::optional<NameField>& new_name,
                                           const CopyPath& copy) {
  const fs::path path = copy ? *copy : AskSavePath();
  if (path.empty()) {
    return {SaveOutcome::kNothingWritten, ""};
  }
  BeginNewMes(path, new_name);
  WriteFile(path, workspace_.set.file_content);
  return {};
}

// The open file is a new one from now on, which is not written yet.
void MessageFileWriter::BeginNewMes(const fs::path& path,
                                    const std::optional<NameField>& new_name) {
  MessageSet& set = workspace_.set;
  RequireReplaceable(path);
  set.CurrentFileName = path;
  set.Modified = kFalse;
  set.file_content = BuildNewMes(set, new_name, HeaderFlags());
  set.file_content += TailOf(path, set.file_content.size());
  set.language_names = {std::string(kReferenceName)};
  if (new_name) {
    set.language_names.push_back(new_name->Caption());
  }
}

SaveOutcome MessageFileWriter::AddImportedLanguage() {
  MessageSet& set = workspace_.set;
  const NameField name = AskNewLanguageName(workspace_, dialogs_);
  if (set.file_was_imported) {
    AddLanguage(set, name);
    set.file_content =
        Patched(set.file_content,
                BuildMesPatch(set, set.DestLang, name, HeaderFlags(), set.file_content.size()));
    return {};
  }
  const fs::path path = AskSavePath();
  if (path.empty()) {
    return {SaveOutcome::kNothingWritten, ""};
  }
  BeginNewMes(path, name);
  set.file_was_imported = true;
  return {};
}

void MessageFileWriter::WriteImported() {
  WriteFile(workspace_.set.CurrentFileName, workspace_.set.file_content);
  workspace_.set.NoteSaved();
  TellSaved();
}

void MessageFileWriter::PatchMes(const std::optional<NameField>& new_name, const CopyPath& copy) {
  MessageSet& set = workspace_.set;
  editing_.StoreCurrentMessage();
  set.BlockLength = MesBlockLength(set.LastCol, set.LangStride);
  Patch(copy, [&](const std::string& content) {
    if (new_name) {
      AddLanguage(set, *new_name);
    }
    const std::string& caption = set.language_names.at(set.DestLang);
    return BuildMesPatch(set, set.DestLang, new_name ? *new_name : NameField::FromCaption(caption),
                         HeaderFlags(), content.size());
  });
  if (new_name && set.phase == Phase::kDestinationUnnamed) {
    set.phase = Phase::kDestinationOpen;
    set.new_language_name.reset();
  }
  if (new_name && set.phase >= Phase::kOriginChosen) {
    reader_.Load(set.file_content);
  }
}

void MessageFileWriter::PatchMsx(const CopyPath& copy) {
  const MessageSet& set = workspace_.set;
  editing_.StoreCurrentMessage();
  Patch(copy, [&](const std::string& content) {
    return std::vector<FilePatch>{BuildMsxLines(set, content)};
  });
}

void MessageFileWriter::Patch(const CopyPath& copy, const PatchBuilder& build) {
  if (copy) {
    WriteCopy(*copy, build);
  } else {
    ChangeMessageFile(workspace_, dialogs_, build);
  }
  workspace_.set.Modified = kFalse;
}

void MessageFileWriter::WriteCopy(const fs::path& copy, const PatchBuilder& build) {
  MessageSet& set = workspace_.set;
  try {
    TakeOverChanges(set, ReadSharedFile(set.CurrentFileName), {});
  } catch (const FileError&) {
    // The copy rescues what was read.
  }
  std::string content = Patched(set.file_content, build(set.file_content));
  WriteFile(copy, content);
  set.CurrentFileName = copy;
  set.file_content = std::move(content);
}

SaveOutcome MessageFileWriter::SaveAs() {
  const MessageSet& set = workspace_.set;
  if (!set.IsMes() && !set.IsMsx()) {
    throw Error(UiTextId::kNoFileToSaveAs);
  }
  const fs::path path = AskSavePath();
  if (path.empty()) {
    return {SaveOutcome::kNothingWritten, ""};
  }
  std::error_code not_there;
  if (fs::equivalent(set.CurrentFileName, path, not_there)) {
    return Save();
  }
  RequireReplaceable(path);
  Rollback rollback(workspace_);
  const fs::path original = set.CurrentFileName;
  SaveOutcome outcome = Write(path);
  rollback.Keep();
  TellSaved();
  CopyMarks(original, path);
  return outcome;
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
