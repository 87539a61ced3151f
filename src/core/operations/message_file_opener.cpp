#include "core/operations/message_file_opener.h"

#include "core/formats/message_file.h"
#include "core/operations/recovery.h"
#include "core/platform/errors.h"
#include "core/platform/folder_of.h"
#include "core/platform/temporary_name.h"

namespace vendlingua {

std::filesystem::path AskForMessageFile(Dialogs& dialogs, const std::filesystem::path& folder) {
  const auto path = dialogs.OpenFile({.purpose = FilePurpose::kOpenMessages,
                                      .title = "",
                                      .initial_name = "",
                                      .default_extension = "",
                                      .filters = {{"Message", "MES"}, {"Message", "MSX"}},
                                      .must_exist = true,
                                      .folder = folder});
  return path == "*.MES" || path == "*.MSX" ? std::filesystem::path()
                                            : path.value_or(std::filesystem::path());
}

MessageFileOpener::MessageFileOpener(Workspace& workspace, Dialogs& dialogs,
                                     MessageFileReader& reader, MessageFileWriter& writer,
                                     SourceImport& import)
    : workspace_(workspace), dialogs_(dialogs), reader_(reader), writer_(writer), import_(import) {}

OpenOutcome MessageFileOpener::Open() {
  if (!writer_.NonSave()) {
    return OpenOutcome::kCancelled;
  }
  workspace_.folders.current = workspace_.folders.program;
  const std::filesystem::path path = AskForMessageFile(dialogs_, workspace_.folders.current);
  if (path.empty()) {
    return OpenOutcome::kCancelled;
  }
  return OpenPath(path, MessageFileType(path));
}

OpenOutcome MessageFileOpener::Open(const std::filesystem::path& path) {
  return writer_.NonSave() ? OpenPath(path, MessageFileType(path)) : OpenOutcome::kCancelled;
}

OpenOutcome MessageFileOpener::Import(const std::filesystem::path& path) {
  if (!IsAssemblerSource(path)) {
    throw FileError(path, UiTextId::kNotASource);
  }
  return OpenPath(path, std::string(kMesType));
}

OpenOutcome MessageFileOpener::OpenPath(const std::filesystem::path& path,
                                        const std::string& type) {
  workspace_.folders.current = path.parent_path();
  if (!IsMessageFileType(type)) {
    workspace_.window.status =
        FileError(path.filename(), UiTextId::kNoMessageFile).In(workspace_.ui_text);
    return OpenOutcome::kCancelled;
  }
  Rollback rollback(workspace_);
  MessageSet& set = workspace_.set;
  set.CurrentFileName = path;
  set.CurrentFileType = type;
  RemoveStaleFiles(FolderOf(path));
  OfferRecovery(workspace_.ui_text, dialogs_, path);
  const bool opened = set.IsMsx() ? reader_.OpenMsxFile() : OpenMesFile();
  rollback.Keep();
  return opened ? OpenOutcome::kOpened : OpenOutcome::kRefused;
}

bool MessageFileOpener::OpenMesFile() {
  const bool is_source = IsAssemblerSource(workspace_.set.CurrentFileName);
  reader_.ResetForMes();
  return is_source ? import_.ImportSource() : reader_.Reload();
}

}  // namespace vendlingua
