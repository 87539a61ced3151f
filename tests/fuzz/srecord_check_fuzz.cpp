#include <string_view>

#include "core/formats/srecord_check.h"
#include "fuzz_support.h"

namespace vendlingua {

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  return fuzz::Run([&] {
    const std::string content(bytes, bytes + size);
    for (const std::string& finding : CheckSRecords(content)) {
      fuzz::Require(!finding.empty(), "a finding says what was found");
    }
  });
}

}  // namespace vendlingua
