#include "core/document/display_text.h"

#include <gmock/gmock.h>

#include <string>

#include "support/message_files.h"

namespace vendlingua {
namespace {

using test::Codes;
using test::Text;

TEST(DisplayText, ReadsBackAsTheTextAndBlanksUpToFortyCells) {
  const DisplayText text(Codes("Vuoto acqua  123"));
  EXPECT_EQ(Text(text.Cells()), "Vuoto acqua  123" + std::string(24, ' '));
}

TEST(DisplayText, HoldsFortyBlanksUntilItIsAssigned) {
  EXPECT_EQ(Text(DisplayText().Cells()), std::string(40, ' '));
  EXPECT_EQ(DisplayText(), DisplayText(Codes("")));
}

TEST(DisplayText, CutsWhatIsLongerThanFortyCells) {
  const std::string longest(40, 'x');
  EXPECT_EQ(Text(DisplayText(Codes(longest)).Cells()), longest);
  EXPECT_EQ(Text(DisplayText(Codes(longest + "y")).Cells()), longest);
}

TEST(DisplayText, KeepsPlaceholdersAsOrdinaryCharacters) {
  const DisplayText text(Codes("Credito \xFE\xFE"));
  EXPECT_EQ(text[8], kPlaceholder);
  EXPECT_EQ(Text(text.First(11)), "Credito \xFE\xFE ");
}

TEST(DisplayText, KeepsEveryCode) {
  const std::string text("\0\x01\x7F\x80\xFF", 5);
  EXPECT_EQ(Text(DisplayText(Codes(text)).First(5)), text);
}

TEST(DisplayText, YieldsItsFirstCells) {
  const DisplayText text(Codes("ABCDEF"));
  EXPECT_EQ(Text(text.First(4)), "ABCD");
  EXPECT_EQ(text.First(0).size(), 0U);
  EXPECT_EQ(text.First(41).size(), 40U);
}

}  // namespace
}  // namespace vendlingua
