#ifndef VENDLINGUA_CORE_PLATFORM_PATH_OF_H_
#define VENDLINGUA_CORE_PLATFORM_PATH_OF_H_

#include <filesystem>
#include <string>
#include <string_view>

namespace vendlingua {

/// The path that UTF-8 names. A path that is made of a string directly would be taken, on Windows,
/// for one in the characters of the C locale. Elsewhere the bytes stay as they are, whatever they
/// are.
inline std::filesystem::path PathOf(std::string_view utf8) {
  return std::u8string(utf8.begin(), utf8.end());
}

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_PLATFORM_PATH_OF_H_
