#ifndef VENDLINGUA_TESTS_UNIT_EXCHANGE_XLIFF_TEST_UNITS_H_
#define VENDLINGUA_TESTS_UNIT_EXCHANGE_XLIFF_TEST_UNITS_H_

#include <string>

namespace vendlingua::test {

/// An XLIFF file around `units`.
inline std::string Xliff(const std::string& units, const std::string& version = "1.2") {
  return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<xliff version=\"" + version +
         "\" xmlns=\"urn:oasis:names:tc:xliff:document:1.2\"><file original=\"a\" "
         "source-language=\"it\" datatype=\"plaintext\"><body>" +
         units + "</body></file></xliff>\n";
}

/// A unit of one message.
inline std::string Unit(const std::string& message, const std::string& source,
                        const std::string& target) {
  return "<trans-unit id=\"" + message + "\" resname=\"" + message + "\"><source>" + source +
         "</source>\n  <target>" + target + "</target></trans-unit>";
}

}  // namespace vendlingua::test

#endif  // VENDLINGUA_TESTS_UNIT_EXCHANGE_XLIFF_TEST_UNITS_H_
