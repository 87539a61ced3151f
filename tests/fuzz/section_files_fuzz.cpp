#include <memory>

#include "core/flash/section_files.h"
#include "core/platform/files.h"
#include "fuzz_support.h"

namespace vendlingua {

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  return fuzz::Run([&] {
    const auto flash_file = fuzz::EmptyFolder() / "FLASH.MHX";
    fuzz::FuzzDialogs dialogs;
    const auto section_files = std::make_unique<SectionFiles>();
    section_files->ReadBack(flash_file, std::string(bytes, bytes + size), dialogs, UiText());
    for (const auto& path : section_files->WriteSections(SectionBase(flash_file))) {
      fuzz::Require(ReadFile(path).size() <= 0x8000, "no section is longer than the largest");
    }
  });
}

}  // namespace vendlingua
