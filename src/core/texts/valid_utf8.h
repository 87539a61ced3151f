#ifndef VENDLINGUA_CORE_TEXTS_VALID_UTF8_H_
#define VENDLINGUA_CORE_TEXTS_VALID_UTF8_H_

#include <string>
#include <string_view>

namespace vendlingua {

/// `text` as it can be shown and put into JSON: every piece of it that is no UTF-8 becomes U+FFFD.
std::string ValidUtf8(std::string_view text);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_TEXTS_VALID_UTF8_H_
