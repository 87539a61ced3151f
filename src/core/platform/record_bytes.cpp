#include "core/platform/record_bytes.h"

#include <boost/crc.hpp>

namespace vendlingua {

std::uint32_t Checksum(std::string_view bytes) {
  boost::crc_32_type crc;
  crc.process_bytes(bytes.data(), bytes.size());
  return crc.checksum();
}

void AppendNumber(std::string& out, std::size_t number) {
  for (std::size_t byte = 0; byte < kNumberBytes; ++byte) {
    out += static_cast<char>(number >> (8 * byte) & 0xFFU);
  }
}

std::uint32_t RecordReader::Number() {
  std::uint32_t number = 0;
  const std::string_view bytes = Bytes(kNumberBytes);
  for (std::size_t byte = 0; byte < bytes.size(); ++byte) {
    number |= std::uint32_t{static_cast<unsigned char>(bytes[byte])} << (8 * byte);
  }
  return number;
}

std::string_view RecordReader::Bytes(std::size_t count) {
  is_complete_ = is_complete_ && count <= rest_.size();
  const std::string_view bytes = rest_.substr(0, count);
  rest_.remove_prefix(bytes.size());
  return bytes;
}

}  // namespace vendlingua
