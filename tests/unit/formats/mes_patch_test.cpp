#include "core/formats/mes_patch.h"

#include <gmock/gmock.h>

#include <string>

#include "core/platform/errors.h"
#include "support/message_files.h"

namespace vendlingua {
namespace {

using test::Codes;
using testing::ElementsAre;
using testing::HasSubstr;

// A file of three languages of four slots, of which messages 0 to 2 are used: the header and three
// blocks of 20 + 4 x 4 bytes.
class MesPatchTest : public ::testing::Test {
 protected:
  MesPatchTest() {
    set_.CurrentFileName = "FILE.MES";
    set_.LastCol = 3;
    set_.LangStride = 3;
    set_.LastMsg = 2;
    set_.BlockLength = 36;
    set_.DestText[0] = DisplayText(Codes("ABCD"));
    set_.DestText[1] = DisplayText(Codes("\xFE"));
    set_.DestText[2] = DisplayText(Codes("IJKLM"));
    set_.DestText[3] = DisplayText(Codes("NOPQ"));
  }

  std::vector<FilePatch> Patch(int language, std::uintmax_t file_size = kFileSize) {
    return BuildMesPatch(set_, language, NameField(Codes("ENGLISH")), 0x0D, file_size);
  }

  std::string ReasonAgainst(int language, std::uintmax_t file_size = kFileSize) {
    try {
      Patch(language, file_size);
    } catch (const FileError& error) {
      return error.what();
    }
    return "none";
  }

  static constexpr std::uintmax_t kFileSize = 24 + 3 * 36;
  MessageSet set_;
};

TEST_F(MesPatchTest, IsTheFlagsLastMsgAndTheBlockUpToTheLastMessage) {
  EXPECT_THAT(Patch(1), ElementsAre(FilePatch{2, "0D"}, FilePatch{8, "0002"},
                                    FilePatch{60, "ENGLISH             ABCD\xFE   IJKL"}));
}

TEST_F(MesPatchTest, BeginsWhereTheBlockOfTheLanguageBegins) {
  EXPECT_EQ(Patch(2).back().position, 96);
  EXPECT_EQ(Patch(100).back().position, 24 + 100 * 36);
}

TEST_F(MesPatchTest, GrowsWithLastMsg) {
  set_.LastMsg = 3;
  const auto patches = Patch(1);
  EXPECT_EQ(patches.at(1).bytes, "0003");
  EXPECT_EQ(patches.at(2).bytes, "ENGLISH             ABCD\xFE   IJKLNOPQ");
}

// Only 40 cells of a message are kept.
TEST_F(MesPatchTest, HasBlanksBehindTheTextOfAMessageThatIsWiderThanFortyCells) {
  set_.LastCol = 41;
  set_.LastMsg = 0;
  set_.DestText[0] = DisplayText(Codes(std::string(40, 'x')));
  EXPECT_EQ(Patch(1, 60).back().bytes, "ENGLISH             " + std::string(40, 'x') + "  ");
}

// Five messages of four bytes do not fit a block of four slots.
TEST_F(MesPatchTest, IsRefusedWhenItWouldRunIntoTheNextLanguage) {
  set_.LastMsg = 4;
  EXPECT_THAT(ReasonAgainst(1), testing::AllOf(HasSubstr("FILE.MES: "), HasSubstr("36 bytes"),
                                               HasSubstr("5 messages")));
}

TEST_F(MesPatchTest, MayRunBeyondTheBlockOfTheLastLanguage) {
  set_.LastMsg = 4;
  EXPECT_EQ(ReasonAgainst(1, 96), "none");
  EXPECT_EQ(ReasonAgainst(2), "none");
}

class NewMesTest : public ::testing::Test {
 protected:
  NewMesTest() {
    set_.LangCount = 2;
    set_.LastCol = 3;
    set_.HeaderCount = 1;
    set_.LastMsg = 1;
    set_.MemStart = 0x6000;
    set_.MemLength = 24;
    set_.LangStride = 3;
    set_.OriginText[0] = DisplayText(Codes("ABCD"));
    set_.OriginText[1] = DisplayText(Codes("E"));
    set_.OriginText[3] = DisplayText(Codes("OLD "));
  }

  const std::string header_ = std::string("\x02\x03") + "0200010001" + "00006000" + "0018";
  MessageSet set_;
};

TEST_F(NewMesTest, HoldsTheOriginTextsTwiceWithAllSlots) {
  EXPECT_EQ(
      BuildNewMes(set_, NameField(Codes("ITALIANO")), 2),
      header_ + "Default             ABCDE       OLD " + "ITALIANO            ABCDE       OLD ");
}

TEST_F(NewMesTest, HasNothingInThePlaceOfANameThatIsNotGiven) {
  EXPECT_EQ(BuildNewMes(set_, std::nullopt, 2),
            header_ + "Default             ABCDE       OLD " + "ABCDE       OLD ");
}

TEST_F(NewMesTest, HasBlanksInSlotsThatTheSetHasNoTextFor) {
  set_.LangStride = 999;
  const std::string content = BuildNewMes(set_, std::nullopt, 2);
  EXPECT_EQ(content.size(), 24 + 20 + 2 * 1000 * 4);
  EXPECT_EQ(content.substr(44 + 999 * 4, 8), "    ABCD");
}

TEST_F(NewMesTest, HasBlanksBehindTheTextOfAMessageThatIsWiderThanFortyCells) {
  set_.LastCol = 44;
  set_.LangStride = 0;
  set_.OriginText[0] = DisplayText(Codes(std::string(40, 'x')));
  EXPECT_EQ(
      BuildNewMes(set_, std::nullopt, 2).substr(24),
      "Default             " + std::string(40, 'x') + "     " + std::string(40, 'x') + "     ");
}

}  // namespace
}  // namespace vendlingua
