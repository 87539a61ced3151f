#include "core/operations/display_type.h"

#include <vector>

#include "core/formats/mes_file.h"
#include "core/formats/mes_patch.h"
#include "core/operations/message_file_change.h"
#include "core/platform/errors.h"

namespace vendlingua {

void StoreDisplayType(Workspace& workspace, Dialogs& dialogs, std::size_t type) {
  MessageSet& set = workspace.set;
  if (!set.IsMes()) {
    throw FileError(set.CurrentFileName, UiTextId::kNoDisplayTypeInMsx);
  }
  if (type >= kStoredDisplayTypes) {
    throw FileError(set.CurrentFileName, UiTextId::kHebrewNotStored);
  }
  ChangeMessageFile(workspace, dialogs, [&set, type](const std::string& /*content*/) {
    return std::vector{BuildFlagsPatch(MesFlags(set, type))};
  });
  set.LoadDisplayType(type);
}

}  // namespace vendlingua
