#include "core/exchange/xml_text.h"

#include <gmock/gmock.h>

namespace vendlingua {
namespace {

TEST(XmlText, HasItsReferencesReplaced) {
  EXPECT_EQ(Unescaped("a &lt;b&gt; &amp;&quot;&apos;").text, "a <b> &\"'");
  EXPECT_EQ(Unescaped("&#254;&#xFE;&#x041F;&#x0001F600;").text, "þþП\U0001F600");
  EXPECT_EQ(Unescaped("").text, "");
  EXPECT_EQ(Unescaped("&amp;amp;").text, "&amp;");
}

TEST(XmlText, NamesAReferenceThatStandsForNoCharacter) {
  for (const std::string reference : {"&foo;", "&#0;", "&#x0;", "&#xD800;", "&#x110000;", "&#-1;",
                                      "&#;", "&#x;", "&;", "&#1x;"}) {
    EXPECT_EQ(Unescaped("a" + reference + "b").unknown, reference);
  }
}

TEST(XmlText, NamesTheStartOfAReferenceThatDoesNotEnd) {
  EXPECT_EQ(Unescaped("a & b").unknown, "& b");
  EXPECT_EQ(Unescaped("&").unknown, "&");
  EXPECT_EQ(Unescaped("&abcdefghijklmnopqrstuvwxyz;").unknown, "&abcdefghijkl");
}

}  // namespace
}  // namespace vendlingua
