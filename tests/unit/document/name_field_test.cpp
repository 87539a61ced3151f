#include "core/document/name_field.h"

#include <gmock/gmock.h>

#include <string>

#include "core/platform/errors.h"
#include "support/message_files.h"

namespace vendlingua {
namespace {

using test::Codes;
using ::testing::HasSubstr;

TEST(NameField, IsPaddedWithBlanksToTwentyBytes) {
  EXPECT_EQ(NameField(Codes("Default")).Bytes(), "Default             ");
}

TEST(NameField, IsCutAtTwentyBytes) {
  EXPECT_EQ(NameField(Codes("ABCDEFGHIJKLMNOPQRSTUVWXYZ")).Bytes(), "ABCDEFGHIJKLMNOPQRST");
}

TEST(NameField, ShowsItsNameWithoutTheBlanksAtTheEnd) {
  const NameField name(Codes("  ITALIANO 2        "));
  EXPECT_EQ(name.Caption(), "  ITALIANO 2");
  EXPECT_EQ(name.PaddedText(), "  ITALIANO 2        ");
}

TEST(NameField, IsBlankWhenItsTwentyBytesAre) {
  EXPECT_TRUE(NameField(Codes("")).IsBlank());
  EXPECT_TRUE(NameField(Codes("                    behind them")).IsBlank());
  EXPECT_FALSE(NameField(Codes("                   x")).IsBlank());
}

TEST(NameField, SpeaksUtf8) {
  EXPECT_EQ(NameField(Codes("Fran\xE7"
                            "ais"))
                .Caption(),
            "Français");
  EXPECT_EQ(NameField::FromCaption("Français").Bytes(),
            "Fran\xE7"
            "ais            ");
}

TEST(NameFieldFromCaption, LeavesTheCaseAsItIs) {
  EXPECT_EQ(NameField::FromCaption("italiano").Bytes(), "italiano            ");
}

TEST(NameFieldFromCaption, GivesBackTheBytesOfEveryName) {
  const std::string bytes("\x01\x81\x8D\x9D\xFE\0abcdefghijklm\xFF", 20);
  EXPECT_EQ(NameField::FromCaption(NameField(Codes(bytes)).Caption()).Bytes(), bytes);
}

TEST(NameFieldFromAnswer, PadsCutsAndRaises) {
  EXPECT_EQ(NameField::FromAnswer("deutsch").Bytes(), "DEUTSCH             ");
  EXPECT_EQ(NameField::FromAnswer("português do brasil novo").Bytes(), "PORTUGU\xCAS DO BRASIL ");
}

TEST(NameFieldFromAnswer, IsBlankForAnEmptyAnswer) {
  EXPECT_TRUE(NameField::FromAnswer("").IsBlank());
  EXPECT_TRUE(NameField::FromAnswer(" ").IsBlank());
}

TEST(NameFieldFromAnswer, RefusesACharacterThatTheDisplayDoesNotHave) {
  try {
    NameField::FromAnswer("РУССКИЙ");
    FAIL() << "was taken";
  } catch (const Error& error) {
    EXPECT_THAT(error.what(), HasSubstr("РУССКИЙ"));
    EXPECT_THAT(error.what(), HasSubstr("\"Р\""));
  }
}

}  // namespace
}  // namespace vendlingua
