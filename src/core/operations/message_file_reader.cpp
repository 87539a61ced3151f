#include "core/operations/message_file_reader.h"

#include <algorithm>
#include <utility>

#include "core/formats/mes_file.h"
#include "core/formats/msx_file.h"
#include "core/platform/errors.h"
#include "core/platform/files.h"

namespace vendlingua {

MessageFileReader::MessageFileReader(Workspace& workspace, Dialogs& dialogs)
    : workspace_(workspace), dialogs_(dialogs) {}

void MessageFileReader::Reset() {
  workspace_.set.Reset();
  workspace_.window.typed.reset();
  workspace_.window.offers_new_message = false;
}

void MessageFileReader::ResetForMes() {
  Reset();
  workspace_.window.height = WindowState::kCompactHeight;
  dialogs_.LetPendingEventsRun();
}

bool MessageFileReader::OpenMsxFile() {
  Reset();
  return Reload();
}

bool MessageFileReader::Reload() {
  if (workspace_.set.IsMsx()) {
    return ReloadMsx();
  }
  if (workspace_.set.IsMes()) {
    NamingFile(workspace_.set.CurrentFileName, [this] { ReloadMes(); });
  }
  return true;
}

void MessageFileReader::ReloadMes() {
  MessageSet& set = workspace_.set;
  std::string content = ReadFile(set.CurrentFileName);
  const MesHeader header = ParseMesHeader(content);
  ApplyMesHeader(header, set);
  set.LoadDisplayType(header.DisplayType());
  std::vector<std::string> names = ReadMesNames(set, content);
  if (names.empty()) {
    throw Error(UiTextId::kNoFirstBlock);
  }
  Take(std::move(names), std::move(content));
  workspace_.window.file_names_entry_0 = true;
}

bool MessageFileReader::ReloadMsx() {
  MessageSet& set = workspace_.set;
  const MesHeader configuration = ParseMesHeader(kMsxConfiguration);
  ApplyDimensions(configuration, set);
  set.LangStride = MsxLangStride(set.MemLength);
  set.LoadDisplayType(configuration.DisplayType());
  workspace_.window.file_names_entry_0 = false;

  std::string content = ReadFile(set.CurrentFileName);
  auto names = ReadMsxNames(set, content);
  if (!names) {
    dialogs_.MessageBox({MessageIcon::kCritical, " File not managed ! ", "ERROR"});
    return false;
  }
  names->insert(names->begin(), std::string(kBuiltInLanguage));
  Take(std::move(*names), std::move(content));
  return true;
}

void MessageFileReader::Take(std::vector<std::string> names, std::string content) {
  MessageSet& set = workspace_.set;
  set.FitTexts();
  set.language_names = std::move(names);
  set.file_content = std::move(content);
  set.phase = std::max(set.phase, Phase::kFileOpen);
  set.history = EditHistory();
}

}  // namespace vendlingua
