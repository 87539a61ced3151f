#include "core/operations/message_file_reader.h"

#include <utility>

#include "core/formats/message_file.h"
#include "core/platform/errors.h"
#include "core/platform/in_place_change.h"

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
  const MessageSet& set = workspace_.set;
  return (!set.IsMes() && !set.IsMsx()) || Load(ReadSharedFile(set.CurrentFileName));
}

bool MessageFileReader::Load(std::string content) {
  MessageSet& set = workspace_.set;
  const bool taken =
      NamingFile(set.CurrentFileName, [&] { return TakeMessageFile(set, std::move(content)); });
  workspace_.window.file_names_entry_0 = set.IsMes();
  if (!taken) {
    dialogs_.MessageBox({MessageIcon::kCritical, " File not managed ! ", "ERROR"});
  }
  return taken;
}

}  // namespace vendlingua
