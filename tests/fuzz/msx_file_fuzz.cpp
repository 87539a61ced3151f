#include "fuzz_support.h"

namespace vendlingua {

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  return fuzz::Run([&] {
    fuzz::Input input(bytes, size);
    fuzz::EditAndSave("INPUT.MSX", input);
  });
}

}  // namespace vendlingua
