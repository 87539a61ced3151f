#ifndef VENDLINGUA_CORE_PLATFORM_RECORD_BYTES_H_
#define VENDLINGUA_CORE_PLATFORM_RECORD_BYTES_H_

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace vendlingua {

// What the files that this program keeps for itself are made of.

/// Bytes of a number.
inline constexpr std::size_t kNumberBytes = 4;

/// CRC-32 of `bytes`.
std::uint32_t Checksum(std::string_view bytes);

/// Appends a 32-bit number, the low byte first.
void AppendNumber(std::string& out, std::size_t number);

/// Takes a record apart; what is missing at its end reads as nothing.
class RecordReader {
 public:
  explicit RecordReader(std::string_view bytes) : rest_(bytes) {}

  std::uint32_t Number();
  std::string_view Bytes(std::size_t count);

  /// Nothing was missing so far.
  bool is_complete() const { return is_complete_; }
  bool at_end() const { return rest_.empty(); }

 private:
  std::string_view rest_;
  bool is_complete_ = true;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_PLATFORM_RECORD_BYTES_H_
