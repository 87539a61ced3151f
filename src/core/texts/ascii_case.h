#ifndef VENDLINGUA_CORE_TEXTS_ASCII_CASE_H_
#define VENDLINGUA_CORE_TEXTS_ASCII_CASE_H_

#include <algorithm>
#include <string>

namespace vendlingua {

/// Upper case of the letters A to Z; all other bytes stay.
inline std::string UpperCase(std::string text) {
  std::transform(text.begin(), text.end(), text.begin(),
                 [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 0x20) : c; });
  return text;
}

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_TEXTS_ASCII_CASE_H_
