#include "core/desk/derived_file.h"

#include "core/platform/errors.h"
#include "core/platform/files.h"
#include "core/platform/same_file.h"

namespace vendlingua {

void WriteDerivedFile(const MessageSet& set, const std::filesystem::path& file,
                      std::string_view content) {
  if (LeadToSameFile(file, set.CurrentFileName)) {
    throw FileError(file, UiTextId::kIsReadFile);
  }
  WriteFile(file, content);
}

}  // namespace vendlingua
