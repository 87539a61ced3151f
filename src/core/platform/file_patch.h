#ifndef VENDLINGUA_CORE_PLATFORM_FILE_PATCH_H_
#define VENDLINGUA_CORE_PLATFORM_FILE_PATCH_H_

#include <cstdint>
#include <string>
#include <vector>

namespace vendlingua {

/// Bytes that take the place of those at `position`, counted from 0.
struct FilePatch {
  std::int64_t position;
  std::string bytes;

  bool operator==(const FilePatch&) const = default;
};

/// `content` with the patches, one behind the other. Bytes that no patch covers stay; a gap behind
/// the old end is filled with 0.
std::string Patched(std::string content, const std::vector<FilePatch>& patches);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_PLATFORM_FILE_PATCH_H_
