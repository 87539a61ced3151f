#include "core/flash/kept_files.h"

#include "core/platform/errors.h"
#include "core/platform/same_file.h"

namespace vendlingua {

void RefuseToReplace(std::span<const KeptFile> kept, const std::filesystem::path& output) {
  for (const KeptFile& file : kept) {
    if (LeadToSameFile(output, file.path)) {
      throw FileError(output, file.refusal);
    }
  }
}

}  // namespace vendlingua
