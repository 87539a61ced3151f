#include "core/flash/section_files.h"

#include <gmock/gmock.h>

#include <random>

#include "core/platform/errors.h"
#include "support/message_files.h"
#include "support/scripted_dialogs.h"
#include "support/temporary_folder.h"

namespace vendlingua {
namespace {

using test::S2Line;
using test::Slurp;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

// A record of sixteen times `letter`. Only the low 16 bits of `address` count.
std::string Record(std::size_t address, char letter) {
  return S2Line(address, std::string(16, letter)) + "\r\n";
}

class SectionFilesTest : public testing::Test {
 protected:
  SectionFilesTest() {
    ui_text_.Set(29, "text 29");
    ui_text_.Set(38, "text 38");
  }

  bool ReadBack(std::string_view content) {
    return sections_.ReadBack(folder_.Write("F.MHX", content), content, dialogs_, ui_text_);
  }

  std::vector<std::filesystem::path> Write() { return sections_.WriteSections(folder_ / "F"); }

  // The bytes of a section file after reading `content` back.
  std::string Section(std::string_view content, int section) {
    ReadBack(content);
    Write();
    return Slurp(folder_ / ("F.SA" + std::to_string(section)));
  }

  test::TemporaryFolder folder_;
  test::ScriptedDialogs dialogs_;
  UiText ui_text_;
  SectionFiles sections_;
};

TEST_F(SectionFilesTest, WritesTheBytesOfASection) {
  EXPECT_EQ(Section(Record(0xFF8000, 'a') + Record(0xFF8010, 'b'), 1),
            std::string(16, 'a') + std::string(16, 'b'));
}

TEST_F(SectionFilesTest, LooksAtTheLow16BitsOfTheAddress) {
  EXPECT_EQ(Section(Record(0x128000, 'a'), 1), std::string(16, 'a'));
}

TEST_F(SectionFilesTest, WritesASectionFromItsFirstAddressOn) {
  EXPECT_EQ(Section(Record(0xFFA010, 'a'), 2), std::string(16, '\0') + std::string(16, 'a'));
}

TEST_F(SectionFilesTest, WritesEverySectionWithItsOwnNumber) {
  ReadBack(Record(0x000000, '0') + Record(0x008000, '1') + Record(0x00A000, '2') +
           Record(0x00BC00, '3') + Record(0x00BE00, '4'));
  Write();
  EXPECT_EQ(folder_.Names(), "F.MHX F.SA0 F.SA1 F.SA2 F.SA3 F.SA4 F.mtx");
  for (int section = 0; section < 5; ++section) {
    EXPECT_EQ(Slurp(folder_ / ("F.SA" + std::to_string(section))),
              std::string(16, static_cast<char>('0' + section)));
  }
}

TEST_F(SectionFilesTest, EndsEverySectionAtItsLastAddress) {
  ReadBack(Record(0x007FF0, '0') + Record(0x009FF0, '1') + Record(0x00BBF0, '2') +
           Record(0x00BDF0, '3') + Record(0x00BFF0, '4'));
  EXPECT_THAT(sections_.SectionUsed(), ElementsAre(32768, 8192, 7168, 512, 512, 0));
}

TEST_F(SectionFilesTest, WritesAnEmptyMtxFile) {
  folder_.Write("F.mtx", "old");
  ReadBack(Record(0xFF8000, 'a'));
  Write();
  EXPECT_EQ(Slurp(folder_ / "F.mtx"), "");
}

TEST_F(SectionFilesTest, LeavesNoFileForAnUnusedSection) {
  folder_.Write("F.SA0", "old");
  ReadBack(Record(0xFF8000, 'a'));
  Write();
  EXPECT_EQ(folder_.Names(), "F.MHX F.SA1 F.mtx");
}

TEST_F(SectionFilesTest, ReplacesTheFileOfAUsedSection) {
  folder_.Write("F.SA1", std::string(100, 'x'));
  EXPECT_EQ(Section(Record(0xFF8000, 'a'), 1), std::string(16, 'a'));
}

TEST_F(SectionFilesTest, TellsWhichFilesItWrote) {
  ReadBack(Record(0xFF8000, 'a') + Record(0xFFBC00, 'b'));
  EXPECT_THAT(Write(), ElementsAre(folder_ / "F.mtx", folder_ / "F.SA1", folder_ / "F.SA3"));
}

TEST_F(SectionFilesTest, CountsOneByteLessForASectionWhoseEndARecordCrosses) {
  ReadBack(Record(0xFF9FF8, 'a'));
  EXPECT_THAT(sections_.SectionUsed(), ElementsAre(0, 8191, 8, 0, 0, 0));
}

TEST_F(SectionFilesTest, SplitsARecordThatCrossesTheEndOfASection) {
  ReadBack(Record(0xFF9FF8, 'a'));
  Write();
  EXPECT_EQ(Slurp(folder_ / "F.SA1"), std::string(0x1FF8, '\0') + std::string(7, 'a'));
  EXPECT_EQ(Slurp(folder_ / "F.SA2"), std::string(8, 'a'));
}

TEST_F(SectionFilesTest, CountsARecordThatEndsWithTheSectionInFull) {
  ReadBack(Record(0xFF9FF0, 'a'));
  EXPECT_THAT(sections_.SectionUsed(), ElementsAre(0, 8192, 0, 0, 0, 0));
}

TEST_F(SectionFilesTest, LowersAFullSectionWhoseEndARecordCrosses) {
  ReadBack(Record(0xFF9FF0, 'a') + Record(0xFF9FFF, 'b'));
  EXPECT_THAT(sections_.SectionUsed(), ElementsAre(0, 8191, 15, 0, 0, 0));
}

TEST_F(SectionFilesTest, NeverLowersTheUsedLengthForAnEarlierAddress) {
  ReadBack(Record(0xFF8100, 'a') + Record(0xFF8000, 'b'));
  EXPECT_EQ(sections_.SectionUsed()[1], 0x110);
}

TEST_F(SectionFilesTest, NeverLowersTheNextSectionForACrossingRecord) {
  ReadBack(Record(0xFFA100, 'a') + Record(0xFF9FF8, 'b'));
  EXPECT_EQ(sections_.SectionUsed()[2], 0x110);
}

TEST_F(SectionFilesTest, IgnoresRecordsAtC000AndAbove) {
  EXPECT_TRUE(ReadBack(Record(0xFFC000, 'a') + Record(0xFFFFF0, 'b')));
  EXPECT_THAT(sections_.SectionUsed(), ElementsAre(0, 0, 0, 0, 0, 0));
  Write();
  EXPECT_EQ(folder_.Names(), "F.MHX F.mtx");
}

TEST_F(SectionFilesTest, DropsWhatFallsBehindBFFF) {
  EXPECT_EQ(Section(Record(0xFFBFF8, 'a'), 4), std::string(0x1F8, '\0') + std::string(7, 'a'));
  EXPECT_THAT(sections_.SectionUsed(), ElementsAre(0, 0, 0, 0, 511, 8));
}

TEST_F(SectionFilesTest, SkipsRecordsOfOtherTypes) {
  EXPECT_TRUE(
      ReadBack("S0130000445430343137414220202020202020"
               "2020E7\r\n"
               "S1078000"
               "41424344"
               "6E\r\n"
               "S9030000FC\r\n"));
  EXPECT_THAT(sections_.SectionUsed(), ElementsAre(0, 0, 0, 0, 0, 0));
  EXPECT_THAT(dialogs_.messages, IsEmpty());
}

TEST_F(SectionFilesTest, DoesNotLookAtTheChecksum) {
  EXPECT_EQ(Section("S208FF80004142434400\r\n", 1), "ABCD");
}

TEST_F(SectionFilesTest, ReadsPairsThatAreNotHexadecimalAsZero) {
  EXPECT_EQ(Section("S208FF800041GG434400\r\n", 1), std::string("A\0CD", 4));
}

TEST_F(SectionFilesTest, ReadsPairsThatAreMissingAsZero) {
  EXPECT_EQ(Section("S208FF80004142", 1), std::string("AB\0\0", 4));
}

TEST_F(SectionFilesTest, ReadsAnAddressThatIsNotHexadecimalAsZero) {
  EXPECT_EQ(Section("S208FFXX004142434400\r\n", 0), "ABCD");
}

TEST_F(SectionFilesTest, StoresNothingForACountThatIsNotHexadecimalOrBelow4) {
  EXPECT_TRUE(ReadBack("S2XXFF80004142434400\r\nS203FF800041\r\nS204FF8000FF\r\nS2\r\n"));
  EXPECT_THAT(sections_.SectionUsed(), ElementsAre(0, 0, 0, 0, 0, 0));
}

// The count is 4 more than the data bytes: a count of 0 to 3 is -4 to -1 bytes. They use the
// section up to the address less 4 to 1, as if so many bytes were taken back.
TEST_F(SectionFilesTest, CountsUpToTheAddressLessWhatACountBelow4LacksOf4) {
  ReadBack("S200FF8010\r\n");
  EXPECT_THAT(sections_.SectionUsed(), ElementsAre(0, 0x0C, 0, 0, 0, 0));
  ReadBack("S203FFBFFF\r\n");
  EXPECT_THAT(sections_.SectionUsed(), ElementsAre(0, 0x0C, 0, 0, 0x1FE, 0));
  ReadBack("S2XXFF7FFF\r\n");
  EXPECT_THAT(sections_.SectionUsed(), ElementsAre(0x7FFB, 0x0C, 0, 0, 0x1FE, 0));
}

TEST_F(SectionFilesTest, TakesNoDataFromACountBelow4) {
  EXPECT_EQ(Section("S203FF80104142434400\r\n", 1), std::string(15, '\0'));
}

TEST_F(SectionFilesTest, ReadsTheHighestCount) {
  EXPECT_EQ(Section(S2Line(0xFF8000, std::string(251, 'x')), 1), std::string(251, 'x'));
}

TEST_F(SectionFilesTest, ReadsLowerCaseDigits) { EXPECT_EQ(Section("S205ff80006a00\r\n", 1), "j"); }

TEST_F(SectionFilesTest, TakesLinesThatEndInLfAndALastLineWithoutEnd) {
  EXPECT_EQ(Section(S2Line(0xFF8000, "AB") + "\n" + S2Line(0xFF8002, "CD"), 1), "ABCD");
}

TEST_F(SectionFilesTest, LetsPendingEventsRunForEveryLine) {
  ReadBack(Record(0xFF8000, 'a') + Record(0xFF8010, 'b') + "S9030000FC\r\n");
  EXPECT_EQ(dialogs_.pending_event_runs, 3);
}

TEST_F(SectionFilesTest, WarnsOfALineThatDoesNotBeginWithS) {
  EXPECT_FALSE(ReadBack(Record(0xFF8000, 'a') + ":10000000\r\n"));
  ASSERT_THAT(dialogs_.messages, SizeIs(1));
  EXPECT_EQ(dialogs_.messages[0].icon, MessageIcon::kExclamation);
  EXPECT_EQ(dialogs_.messages[0].text, (folder_ / "F.MHX").string() + "\rtext 38");
  EXPECT_EQ(dialogs_.messages[0].title, "text 29");
}

TEST_F(SectionFilesTest, WarnsOfAnEmptyLine) {
  EXPECT_FALSE(ReadBack(Record(0xFF8000, 'a') + "\r\n" + Record(0xFF8010, 'b')));
  EXPECT_THAT(dialogs_.messages, SizeIs(1));
}

TEST_F(SectionFilesTest, WarnsOfALineThatBeginsWithAnythingElse) {
  EXPECT_FALSE(ReadBack("s208ff800041424344\r\n"));
  EXPECT_FALSE(ReadBack("\rS208FF80004142434400\r\n"));
}

TEST_F(SectionFilesTest, StopsReadingAtABadLine) {
  ReadBack(Record(0xFF8000, 'a') + "\r\n" + Record(0xFF8010, 'b'));
  EXPECT_EQ(sections_.SectionUsed()[1], 16);
}

TEST_F(SectionFilesTest, KeepsTheSectionTextsOfTheRunBeforeAtABadLine) {
  ReadBack(Record(0xFF8000, 'a'));
  EXPECT_EQ(Section(Record(0xFF8000, 'b') + Record(0xFF8010, 'c') + "\r\n", 1),
            std::string(16, 'a') + std::string(16, '\0'));
}

TEST_F(SectionFilesTest, WritesNoSectionWhenTheFirstRunMeetsABadLine) {
  ReadBack(Record(0xFF8000, 'a') + "\r\n");
  Write();
  EXPECT_EQ(folder_.Names(), "F.MHX F.mtx");
}

TEST_F(SectionFilesTest, TakesTheMemoryOverFromARunThatMetABadLine) {
  ReadBack(Record(0xFF8000, 'a') + "\r\n");
  EXPECT_EQ(Section(Record(0xFF8010, 'b'), 1), std::string(16, 'a') + std::string(16, 'b'));
}

TEST_F(SectionFilesTest, KeepsMemoryAndUsedLengthsBetweenRuns) {
  ReadBack(Record(0xFF8000, 'a') + Record(0xFF8010, 'a'));
  EXPECT_EQ(Section(Record(0xFF8000, 'b'), 1), std::string(16, 'b') + std::string(16, 'a'));
}

TEST_F(SectionFilesTest, ReadsAnEmptyFile) {
  EXPECT_TRUE(ReadBack(""));
  Write();
  EXPECT_EQ(folder_.Names(), "F.MHX F.mtx");
}

TEST_F(SectionFilesTest, TakesACarriageReturnThatEndsNoLineForACharacter) {
  EXPECT_EQ(Section(S2Line(0xFF8000, "AB") + "\r" + S2Line(0xFF8002, "CD") + "\r", 1), "AB");
  EXPECT_EQ(Section("S208FF8000414\r434400\r\n", 1), std::string("A\0CD", 4));
  EXPECT_EQ(Section("S208FF80004142434400\r\r\n", 1), "ABCD");
}

TEST_F(SectionFilesTest, ReadsRandomBytesWithoutHarm) {
  std::mt19937 random(5);
  constexpr std::string_view kBytes = "S2S2S10123456789ABCDEFaf\xFF\r\n\n";
  for (int round = 0; round < 300; ++round) {
    std::string content(random() % 300, ' ');
    for (char& byte : content) {
      byte = kBytes[random() % kBytes.size()];
    }
    ReadBack(content);
    for (std::size_t s = 0; s < SectionFiles::kSections; ++s) {
      EXPECT_LE(
          sections_.SectionUsed().at(s),
          static_cast<std::int32_t>(SectionFiles::kBounds.at(s + 1) - SectionFiles::kBounds.at(s)));
    }
  }
}

TEST_F(SectionFilesTest, ThrowsForAMissingFolder) {
  EXPECT_THROW(sections_.WriteSections(folder_ / "missing/F"), FileError);
}

TEST_F(SectionFilesTest, ThrowsWhenAFolderStandsInThePlaceOfASection) {
  std::filesystem::create_directories(folder_ / "F.SA0/inside");
  EXPECT_THROW(Write(), FileError);
}

}  // namespace
}  // namespace vendlingua
