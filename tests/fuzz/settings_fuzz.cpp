#include <string>

#include "core/formats/settings_file.h"
#include "core/texts/valid_utf8.h"
#include "fuzz_support.h"

namespace vendlingua {

using fuzz::Require;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  return fuzz::Run([&] {
    const auto name = ParseSettings(std::string(bytes, bytes + size));
    if (name) {
      Require(ValidUtf8(*name) == *name, "a name is UTF-8");
      Require(ParseSettings(ComposeSettings(*name)) == name, "a name reads as it was written");
    }
  });
}

}  // namespace vendlingua
