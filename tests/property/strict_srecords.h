#ifndef VENDLINGUA_TESTS_PROPERTY_STRICT_SRECORDS_H_
#define VENDLINGUA_TESTS_PROPERTY_STRICT_SRECORDS_H_

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace vendlingua::test {

struct StrictRecord {
  char type;  ///< '0', '1' or '2'
  std::uint32_t address;
  std::string data;
};

/// Decodes one line the way a strict loader does, sharing nothing with the program: "S" and the
/// type, upper-case digits only, as many bytes as the count says, and the right checksum. Throws
/// std::runtime_error with the reason otherwise.
StrictRecord ParseStrictly(std::string_view line);

/// Decodes a whole file, every line of which ends in CR LF.
std::vector<StrictRecord> ParseFileStrictly(std::string_view content);

/// The bytes of records that follow one another without gap from `start` on.
std::string ImageOf(const std::vector<StrictRecord>& records, std::uint32_t start);

}  // namespace vendlingua::test

#endif  // VENDLINGUA_TESTS_PROPERTY_STRICT_SRECORDS_H_
