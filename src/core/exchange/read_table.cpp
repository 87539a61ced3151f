#include "core/exchange/read_table.h"

#include "core/exchange/csv_table.h"
#include "core/exchange/text_encoding.h"
#include "core/exchange/xliff_reader.h"

namespace vendlingua {
namespace {

// Whether the first character is that of XML. In UTF-16 a byte 0 stands beside it.
bool IsXml(std::string_view content) {
  constexpr std::string_view kPassedOver(" \t\r\n\0", 5);
  const std::size_t first = content.find_first_not_of(kPassedOver);
  return first != std::string_view::npos && content[first] == '<';
}

}  // namespace

TableReading ReadTable(std::string_view content) {
  const DetectedEncoding detected = DetectEncoding(content);
  if (detected.problem) {
    TableReading reading;
    reading.problems.Add(*detected.problem);
    return reading;
  }
  return IsXml(content.substr(detected.mark)) ? ReadXliff(content, detected)
                                              : ReadCsv(content, detected);
}

}  // namespace vendlingua
