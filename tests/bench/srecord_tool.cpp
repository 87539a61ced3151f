// srecord_tool write IMAGE RECORDS: a binary image as S2 records from address 0 on.
// srecord_tool read RECORDS IMAGE: checked records, in any order, as a binary image from address 0
// on.

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "core/formats/srecord.h"
#include "core/formats/text_lines.h"
#include "core/platform/files.h"

namespace vendlingua {
namespace {

// Bytes that are read at a time, so that memory stays small. The records of so many image bytes
// fill whole pages.
constexpr std::streamsize kChunk = 1 << 17;

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
    throw std::runtime_error(std::string(image_file) + " cannot be converted to " + records_file);
  }
}

// Puts the data of whole record lines where their addresses say.
void PlaceRecords(std::string_view lines_of_records, std::string& image) {
  TextLines lines(lines_of_records);
  SRecord record;
  while (const auto line = lines.Next()) {
    ParseSRecord(line->text, record);
    if (!record.ChecksumIsRight()) {
      throw std::runtime_error("wrong checksum: " + std::string(line->text));
    }
    if (record.type < '1' || record.type > '3') {
      continue;
    }
    image.resize(std::max(image.size(), std::size_t{record.address} + record.size));
    std::copy(record.Data().begin(), record.Data().end(),
              image.begin() + static_cast<std::ptrdiff_t>(record.address));
  }
}

void ReadRecords(const char* records_file, const char* image_file) {
  std::ifstream records(records_file, std::ios::binary);
  std::string image;
  image.reserve(std::filesystem::file_size(records_file) / 2);  // two digits a byte
  std::string chunk(kChunk, '\0');
  std::size_t kept = 0;  // of a line that the last chunk cut
  while (records) {
    records.read(chunk.data() + kept, static_cast<std::streamsize>(chunk.size() - kept));
    const std::string_view read(chunk.data(), kept + static_cast<std::size_t>(records.gcount()));
    const std::size_t whole = records ? read.rfind('\n') + 1 : read.size();
    PlaceRecords(read.substr(0, whole), image);
    kept = read.size() - whole;
    if (kept == chunk.size()) {
      throw std::runtime_error(std::string(records_file) + " has a line that is no record");
    }
    std::copy(read.begin() + static_cast<std::ptrdiff_t>(whole), read.end(), chunk.begin());
  }
  if (!records.eof()) {
    throw std::runtime_error(std::string(records_file) + " cannot be read");
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
