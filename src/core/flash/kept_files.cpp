#include "core/flash/kept_files.h"

#include "core/platform/errors.h"

namespace vendlingua {

FilePlace RefuseToReplace(std::span<const KeptFile> kept, const std::filesystem::path& output) {
  FilePlace place(output);
  for (const KeptFile& file : kept) {
    if (place.IsSameAs(file.place)) {
      throw FileError(output, file.refusal);
    }
  }
  return place;
}

}  // namespace vendlingua
