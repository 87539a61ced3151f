#include "strict_srecords.h"

#include <stdexcept>

namespace vendlingua::test {
namespace {

void Require(bool condition, const std::string& what, std::string_view line) {
  if (!condition) {
    throw std::runtime_error(what + ": " + std::string(line));
  }
}

}  // namespace

StrictRecord ParseStrictly(std::string_view line) {
  Require(line.size() >= 4 && line.size() % 2 == 0 && line[0] == 'S', "no record", line);
  Require(line[1] >= '0' && line[1] <= '2', "another type", line);
  Require(line.substr(2).find_first_not_of("0123456789ABCDEF") == std::string_view::npos,
          "not upper-case hexadecimal", line);
  std::string bytes;
  unsigned sum = 0;
  for (std::size_t i = 2; i < line.size(); i += 2) {
    const int byte = std::stoi(std::string(line.substr(i, 2)), nullptr, 16);
    bytes += static_cast<char>(byte);
    sum += static_cast<unsigned>(byte);
  }
  const auto byte_at = [&bytes](std::size_t i) {
    return std::uint32_t{static_cast<unsigned char>(bytes[i])};
  };
  Require(byte_at(0) == bytes.size() - 1, "wrong count", line);
  // All bytes and their complement add up to 255.
  Require(sum % 256 == 255, "wrong checksum", line);
  const std::size_t address_bytes = line[1] == '2' ? 3 : 2;
  Require(bytes.size() >= address_bytes + 2, "too short", line);
  std::uint32_t address = 0;
  for (std::size_t i = 1; i <= address_bytes; ++i) {
    address = address * 256 + byte_at(i);
  }
  return {line[1], address, bytes.substr(1 + address_bytes, bytes.size() - address_bytes - 2)};
}

std::vector<StrictRecord> ParseFileStrictly(std::string_view content) {
  std::vector<StrictRecord> records;
  while (!content.empty()) {
    const std::size_t end = content.find("\r\n");
    Require(end != std::string_view::npos, "no CR LF", content);
    records.push_back(ParseStrictly(content.substr(0, end)));
    content.remove_prefix(end + 2);
  }
  return records;
}

std::string ImageOf(const std::vector<StrictRecord>& records, std::uint32_t start) {
  std::string image;
  for (const StrictRecord& record : records) {
    Require(record.address == start + image.size(), "gap or overlap",
            std::to_string(record.address));
    image += record.data;
  }
  return image;
}

}  // namespace vendlingua::test
