// srecord_tool write IMAGE RECORDS: a binary image as S2 records from address 0 on.
// srecord_tool read RECORDS IMAGE: checked records, in any order, as a binary image from address 0
// on.

#include <algorithm>
#include <cstdint>
#include <fstream>
#include <iostream>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "msgfiles/srecord.h"
#include "msgfiles/text_lines.h"
#include "platform/errors.h"
#include "platform/files.h"

namespace vendlingua {
namespace {

constexpr std::uint64_t kFileLimit = 1U << 30U;
// Image bytes that are converted at a time, so that memory stays small.
constexpr std::streamsize kChunk = 1 << 14;

void WriteRecords(const char* image_file, const char* records_file) {
  constexpr std::size_t kAddressDigits = 6;
  std::ifstream image(image_file, std::ios::binary);
  std::ofstream records(records_file, std::ios::binary);
  std::vector<std::uint8_t> chunk(kChunk);
  std::uint32_t address = 0;
  while (image) {
    image.read(reinterpret_cast<char*>(chunk.data()), kChunk);
    const auto size = static_cast<std::size_t>(image.gcount());
    records << FormatSRecords(std::span(chunk).first(size), address, SRecordType::kS2,
                              kAddressDigits);
    address += static_cast<std::uint32_t>(size);
  }
  records.close();
  if (!image.eof() || !records) {
    throw Error(std::string(image_file) + " cannot be converted to " + records_file);
  }
}

void ReadRecords(const char* records_file, const char* image_file) {
  const std::string content = ReadFile(records_file, kFileLimit);
  std::string image;
  image.reserve(content.size() / 2);
  TextLines lines(content);
  SRecord record;
  while (const auto line = lines.Next()) {
    ParseSRecord(line->text, record);
    if (!record.ChecksumIsRight()) {
      throw Error("line " + std::to_string(lines.count()) + ": wrong checksum");
    }
    if (record.type < '1' || record.type > '3') {
      continue;
    }
    image.resize(std::max(image.size(), std::size_t{record.address} + record.size));
    std::copy(record.Data().begin(), record.Data().end(),
              image.begin() + static_cast<std::ptrdiff_t>(record.address));
  }
  WriteFile(image_file, image);
}

}  // namespace
}  // namespace vendlingua

int main(int argc, char** argv) try {
  const std::string_view mode = argc == 4 ? argv[1] : "";
  if (mode == "write") {
    vendlingua::WriteRecords(argv[2], argv[3]);
  } else if (mode == "read") {
    vendlingua::ReadRecords(argv[2], argv[3]);
  } else {
    std::cerr << "usage: srecord_tool write IMAGE RECORDS | read RECORDS IMAGE\n";
    return 2;
  }
  return 0;
} catch (const std::exception& error) {
  std::cerr << error.what() << '\n';
  return 1;
}
