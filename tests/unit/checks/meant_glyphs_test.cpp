#include "core/checks/meant_glyphs.h"

#include <gmock/gmock.h>

#include <string_view>

#include "support/display_types.h"
#include "support/message_files.h"

namespace vendlingua {
namespace {

using test::Codes;
using test::kCyrillic;
using test::kHebrew;
using test::kKatakana;
using test::kNormal;

bool IsFoundOn(std::size_t display, std::string_view windows_1252) {
  return DrawsAnotherGlyphThanMeant(Alphabet::Of(display), Codes(windows_1252));
}

TEST(MeantGlyphsTest, ASharpSOnTheNormalDisplayIsADegreeSign) {
  EXPECT_TRUE(IsFoundOn(kNormal,
                        "Stra\xDF"
                        "e"));
  EXPECT_TRUE(IsFoundOn(kNormal, "hei\xDF"));
  EXPECT_TRUE(IsFoundOn(kNormal, "Ma\xDF"));
}

TEST(MeantGlyphsTest, ADegreeSignOnTheNormalDisplayIsMeantSo) {
  for (const char* text : {"60 \xDF"
                           "C",
                           "60\xDF"
                           "C",
                           "Temp\xDF"
                           "C",
                           "T\xDF"
                           "C",
                           "n\xDF 5",
                           "\xFE\xFE\xDF"
                           "F",
                           "1\xDF fila", "\xDF"}) {
    EXPECT_FALSE(IsFoundOn(kNormal, text)) << text;
  }
}

TEST(MeantGlyphsTest, TheOtherLettersOfTheNormalDisplayAreThoseOfWindows) {
  EXPECT_FALSE(IsFoundOn(kNormal,
                         "caff\xE8 \xDC"
                         "berlauf F\xFCr"));
}

TEST(MeantGlyphsTest, AnAccentedLetterInALatinWordOnAnotherDisplay) {
  for (const std::size_t display : {kCyrillic, kKatakana, kHebrew}) {
    EXPECT_TRUE(IsFoundOn(display, "fedelt\xE0")) << display;  // à
    EXPECT_TRUE(IsFoundOn(display, "pi\xF9")) << display;      // ù
    EXPECT_TRUE(IsFoundOn(display, "f\xF6r dig")) << display;  // ö
  }
}

TEST(MeantGlyphsTest, ACapitalAtTheBeginningOfALatinWord) {
  EXPECT_TRUE(IsFoundOn(kCyrillic,
                        "E14 \xDC"
                        "berlauf"));  // ½berlauf
  EXPECT_TRUE(IsFoundOn(kKatakana,
                        "E14 \xDC"
                        "berlauf"));  // ワberlauf
  EXPECT_FALSE(IsFoundOn(kHebrew,
                         "E14 \xDC"
                         "berlauf"));  // drawn as it is meant
}

TEST(MeantGlyphsTest, WordsInTheScriptOfTheDisplay) {
  const auto found_in = [](std::size_t display, std::string_view text) {
    const Alphabet& alphabet = Alphabet::Of(display);
    return DrawsAnotherGlyphThanMeant(alphabet, alphabet.CodesOf(text).codes);
  };
  for (const char* text : {"Привет", "НЕТ ВОДЫ", "USB порт", "tкофе<60°C", "Д", "ждать", "шум",
                           "«slave»", "→menu", "3½ часа", "цифра"}) {
    EXPECT_FALSE(found_in(kCyrillic, text)) << text;
  }
  for (const char* text : {"コーヒー", "USBポート", "ATMメモ", "MDBノID", "10円", "60゜C"}) {
    EXPECT_FALSE(found_in(kKatakana, text)) << text;
  }
  for (const char* text : {"שלום", "USBל", "ל USB", "MDB-ה"}) {
    EXPECT_FALSE(found_in(kHebrew, text)) << text;
  }
}

TEST(MeantGlyphsTest, TheDegreeSignOfWindowsOnADisplayThatDrawsALetterThere) {
  for (const std::size_t display : {kCyrillic, kKatakana}) {
    EXPECT_TRUE(IsFoundOn(display,
                          "60 \xB0"
                          "C"))
        << display;
    EXPECT_TRUE(IsFoundOn(display,
                          "60\xB0"
                          "C"))
        << display;
    EXPECT_TRUE(IsFoundOn(display,
                          "\xFE\xFE\xB0"
                          "F"))
        << display;
    EXPECT_FALSE(IsFoundOn(display, "60 \xB0")) << display;
    EXPECT_FALSE(IsFoundOn(display,
                           "\xB0"
                           "C"))
        << display;
  }
  EXPECT_FALSE(IsFoundOn(kNormal,
                         "60 \xB0"
                         "C"));
  EXPECT_FALSE(IsFoundOn(kCyrillic,
                         "5 \xB0"
                         "CA"));  // a word
}

}  // namespace
}  // namespace vendlingua
