#ifndef VENDLINGUA_CORE_FLASH_KEPT_FILES_H_
#define VENDLINGUA_CORE_FLASH_KEPT_FILES_H_

#include <filesystem>
#include <span>

#include "core/platform/same_file.h"
#include "core/texts/ui_text_id.h"

namespace vendlingua {

/// A file whose place no further output of a run may take.
struct KeptFile {
  FilePlace place;
  UiTextId refusal;  ///< says what it is
};

/// Throws FileError when `output` leads to one of the files, also where neither is made yet.
/// Returns where it leads.
FilePlace RefuseToReplace(std::span<const KeptFile> kept, const std::filesystem::path& output);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_FLASH_KEPT_FILES_H_
