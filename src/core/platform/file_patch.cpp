#include "core/platform/file_patch.h"

#include <algorithm>

namespace vendlingua {

std::string Patched(std::string content, const std::vector<FilePatch>& patches) {
  for (const FilePatch& patch : patches) {
    const auto position = static_cast<std::size_t>(patch.position);
    content.resize(std::max(content.size(), position + patch.bytes.size()));
    std::copy(patch.bytes.begin(), patch.bytes.end(),
              content.begin() + static_cast<std::ptrdiff_t>(position));
  }
  return content;
}

}  // namespace vendlingua
