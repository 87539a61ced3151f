#include "core/document/display_code.h"

#include <gmock/gmock.h>

#include <cstdint>
#include <optional>
#include <string>

#include "support/message_files.h"

namespace vendlingua {
namespace {

using test::AllCodes;
using test::Codes;
using test::Text;

// What the conversion finds to have no display code; "none" when it finds nothing.
std::string Unknown(std::string_view utf8) { return ToDisplayCodes(utf8).unknown.value_or("none"); }

TEST(DisplayCode, SpeaksWindows1252BetweenAsciiAndLatin1) {
  const std::string assigned =
      "\x80\x82\x83\x84\x85\x86\x87\x88\x89\x8A\x8B\x8C\x8E"
      "\x91\x92\x93\x94\x95\x96\x97\x98\x99\x9A\x9B\x9C\x9E\x9F";
  const std::string text = "€‚ƒ„…†‡ˆ‰Š‹ŒŽ‘’“”•–—˜™š›œžŸ";
  EXPECT_EQ(ToUtf8(Codes(assigned)), text);
  EXPECT_EQ(Text(ToDisplayCodes(text).codes), assigned);
}

TEST(DisplayCode, SpeaksLatin1Above) {
  EXPECT_EQ(ToUtf8(Codes("\xA0\xDF\xE8\xF1\xFE\xFF")), "\u00A0ßèñþÿ");
  EXPECT_EQ(Text(ToDisplayCodes("\u00A0ßèñþÿ").codes), "\xA0\xDF\xE8\xF1\xFE\xFF");
}

TEST(DisplayCode, MapsTheUnassignedCodesToControlCharactersOfTheSameValue) {
  EXPECT_EQ(ToUtf8(Codes("\x81\x8D\x8F\x90\x9D")), "\u0081\u008D\u008F\u0090\u009D");
}

TEST(DisplayCode, SurvivesTheWayToTextAndBackWhateverItsValue) {
  const CodesFromUtf8 back = ToDisplayCodes(ToUtf8(AllCodes()));
  EXPECT_EQ(back.codes, AllCodes());
  EXPECT_EQ(back.unknown, std::nullopt);
}

TEST(DisplayCode, SurvivesTheWayToACharacterAndBackWhateverItsValue) {
  for (const DisplayCode code : AllCodes()) {
    EXPECT_EQ(ToDisplayCode(ToUnicode(code)), code) << int{code};
  }
}

TEST(DisplayCode, SurvivesTheWayToBytesAndBackWhateverItsValue) {
  const std::string bytes = BytesFromCodes(AllCodes());
  EXPECT_EQ(bytes.substr(0x41, 3), "ABC");
  EXPECT_EQ(bytes.back(), '\xFF');
  EXPECT_EQ(CodesFromBytes(bytes), AllCodes());
}

TEST(DisplayCode, IsMissingForCharactersOutsideTheCodePage) {
  for (const char32_t character : {U'\u0080', U'\u0085', U'\u009F', U'\u0100', U'Ж', U'中', U'😀'}) {
    EXPECT_EQ(ToDisplayCode(character), std::nullopt) << static_cast<std::uint32_t>(character);
  }
}

TEST(ToDisplayCodes, StopsAtTheFirstCharacterWithoutACode) {
  const CodesFromUtf8 result = ToDisplayCodes("caffè Ж и");
  EXPECT_EQ(Text(result.codes), "caff\xE8 ");
  EXPECT_EQ(result.unknown, "Ж");
}

TEST(ToDisplayCodes, NamesUnknownCharactersWhole) {
  EXPECT_EQ(Unknown("€中"), "中");
  EXPECT_EQ(Unknown("😀!"), "😀");
}

TEST(ToDisplayCodes, TakesNoMalformedUtf8) {
  EXPECT_EQ(Unknown("\x80"), "\x80") << "continuation without a start";
  EXPECT_EQ(Unknown("\xC3("), "\xC3") << "start without a continuation";
  EXPECT_EQ(Unknown("a\xC3"), "\xC3") << "cut after one of two bytes";
  EXPECT_EQ(Unknown("\xE2\x82"), "\xE2") << "cut after two of three bytes";
  EXPECT_EQ(Unknown("\xF5\x80\x80\x80"), "\xF5") << "no UTF-8 byte";
  EXPECT_NE(Unknown("\xED\xA0\x80"), "none") << "half of a surrogate pair";
}

TEST(ToDisplayCodes, TakesNoOverlongUtf8) {
  EXPECT_NE(Unknown("\xC1\x81"), "none") << "A in two bytes";
  EXPECT_NE(Unknown("\xE0\x81\x81"), "none") << "A in three bytes";
  EXPECT_NE(Unknown("\xE0\x83\xA8"), "none") << "e with grave accent in three bytes";
  EXPECT_NE(Unknown("\xF0\x80\x81\x81"), "none") << "A in four bytes";
}

TEST(ToUpper, RaisesTheLettersOfTheCodePageThatHaveACapital) {
  DisplayCodes raised = AllCodes();
  for (DisplayCode& code : raised) {
    code = ToUpper(code);
  }
  DisplayCodes expected = AllCodes();
  const std::string small =
      "abcdefghijklmnopqrstuvwxyz\x9A\x9C\x9E"
      "\xE0\xE1\xE2\xE3\xE4\xE5\xE6\xE7\xE8\xE9\xEA\xEB\xEC\xED\xEE\xEF"
      "\xF0\xF1\xF2\xF3\xF4\xF5\xF6\xF8\xF9\xFA\xFB\xFC\xFD\xFE\xFF";
  const std::string capital =
      "ABCDEFGHIJKLMNOPQRSTUVWXYZ\x8A\x8C\x8E"
      "\xC0\xC1\xC2\xC3\xC4\xC5\xC6\xC7\xC8\xC9\xCA\xCB\xCC\xCD\xCE\xCF"
      "\xD0\xD1\xD2\xD3\xD4\xD5\xD6\xD8\xD9\xDA\xDB\xDC\xDD\xDE\x9F";
  ASSERT_EQ(small.size(), capital.size());
  for (std::size_t i = 0; i < small.size(); ++i) {
    expected[static_cast<unsigned char>(small[i])] = static_cast<DisplayCode>(capital[i]);
  }
  EXPECT_EQ(raised, expected);
}

TEST(TrimRight, TakesOffTheBlanksAtTheEndOnly) {
  EXPECT_EQ(Text(TrimRight(Codes("  a b  "))), "  a b");
  EXPECT_EQ(Text(TrimRight(Codes("   "))), "");
  EXPECT_EQ(Text(TrimRight(Codes(""))), "");
}

TEST(Trim, TakesOffTheBlanksAtBothEnds) {
  EXPECT_EQ(Text(Trim(Codes("  a b  "))), "a b");
  EXPECT_EQ(Text(Trim(Codes("   "))), "");
}

TEST(Trim, TakesOffNothingButBlanks) {
  const std::string text("\t\0a\xA0\n", 5);
  EXPECT_EQ(Text(Trim(Codes(text))), text);
}

TEST(FitTo, PadsWithBlanksOrCuts) {
  EXPECT_EQ(Text(FitTo(Codes("AB"), 4)), "AB  ");
  EXPECT_EQ(Text(FitTo(Codes("ABCD"), 4)), "ABCD");
  EXPECT_EQ(Text(FitTo(Codes("ABCDE"), 4)), "ABCD");
  EXPECT_EQ(Text(FitTo(Codes(""), 2)), "  ");
}

}  // namespace
}  // namespace vendlingua
