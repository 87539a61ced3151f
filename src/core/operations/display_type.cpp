#include "core/operations/display_type.h"

#include <filesystem>

#include "core/formats/mes_file.h"
#include "core/formats/mes_patch.h"
#include "core/platform/errors.h"
#include "core/platform/files.h"

namespace vendlingua {

void StoreDisplayType(MessageSet& set, std::size_t type) {
  if (!set.IsMes()) {
    throw FileError(set.CurrentFileName, UiTextId::kNoDisplayTypeInMsx);
  }
  if (type >= kStoredDisplayTypes) {
    throw FileError(set.CurrentFileName, UiTextId::kHebrewNotStored);
  }
  std::error_code not_told;  // a file that is gone is found when it is opened
  const std::uintmax_t file_size = std::filesystem::file_size(set.CurrentFileName, not_told);
  ApplyPatches(set.CurrentFileName, {BuildFlagsPatch(set, MesFlags(set, type), file_size)});
  set.LoadDisplayType(type);
  set.file_content = ReadFile(set.CurrentFileName);
}

}  // namespace vendlingua
