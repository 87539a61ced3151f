#include "core/exchange/xliff_reader.h"
#include "translation_table_fuzz.h"

namespace vendlingua {

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  return fuzz::Run([&] {
    const std::string content(bytes, bytes + size);
    fuzz::ReadAndPlan(content, [](std::string_view table) {
      const DetectedEncoding encoding = DetectEncoding(table);
      return encoding.problem ? TableReading() : ReadXliff(table, encoding);
    });
  });
}

}  // namespace vendlingua
