#ifndef VENDLINGUA_CORE_EXCHANGE_XML_TEXT_H_
#define VENDLINGUA_CORE_EXCHANGE_XML_TEXT_H_

#include <optional>
#include <string>
#include <string_view>

namespace vendlingua {

/// XML character data or an attribute's value with its references replaced. The parser would pass
/// over those that stand for no character, and cut a text at "&#0;".
struct XmlText {
  std::string text;
  std::optional<std::string> unknown;  ///< the first reference that stands for no character
};
XmlText Unescaped(std::string_view raw);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_EXCHANGE_XML_TEXT_H_
