#include <string>
#include <vector>

#include "unit/operations/message_file_reader_test.h"

namespace vendlingua {
namespace {

using test::Codes;
using test::MesFile;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::SizeIs;

using MesReaderTest = test::MessageFileReaderTest;

TEST_F(MesReaderTest, TakesTheDimensionsFromTheHeader) {
  Open("FILE.MES", MesFile{.last_msg = 1,
                           .flags = "02",
                           .header_count = "000A",
                           .mem_start = "00FF8000",
                           .stride = 5}
                       .Bytes());
  EXPECT_EQ(set_.LangCount, 2);
  EXPECT_EQ(set_.LastCol, 3);
  EXPECT_EQ(set_.HeaderBit1, 65535);
  EXPECT_EQ(set_.HeaderBit0, 0);
  EXPECT_EQ(set_.HeaderCount, 10);
  EXPECT_EQ(set_.LastMsg, 1);
  EXPECT_EQ(set_.MemStart, 0xFF8000U);
  EXPECT_EQ(set_.MemLength, 40U);
  EXPECT_EQ(set_.LangStride, 5);
  EXPECT_EQ(set_.BlockLength, 44.0F);
}

TEST_F(MesReaderTest, SetsBothHeaderBooleansAndDisplayType3ForFlags15) {
  Open("FILE.MES", MesFile{.flags = "0F"}.Bytes());
  EXPECT_EQ(set_.HeaderBit1, 65535);
  EXPECT_EQ(set_.HeaderBit0, 65535);
  EXPECT_TRUE(menus().mnuLCD[3].checked);
}

TEST_F(MesReaderTest, ChecksTheDisplayTypeOfTheFlagsAndNoOther) {
  const std::vector<std::string> flags = {"00", "04", "08", "0C"};
  for (std::size_t type = 0; type < flags.size(); ++type) {
    Open("FILE.MES", MesFile{.flags = flags[type]}.Bytes());
    for (std::size_t i = 0; i < menus().mnuLCD.size(); ++i) {
      EXPECT_EQ(menus().mnuLCD[i].checked, i == type) << type << ' ' << i;
    }
  }
}

TEST_F(MesReaderTest, NeverTakesTheDisplayTypeOfAFileForAChange) {
  Open("ONE.MES", MesFile{.flags = "04"}.Bytes());
  Open("TWO.MES", MesFile{.flags = "08"}.Bytes());
  EXPECT_EQ(set_.Modified, kFalse);
}

TEST_F(MesReaderTest, ShowsEveryLanguageInAllThreeMenus) {
  Open("FILE.MES", MesFile{.names = {"Default", "ITALIANO", "ENGLISH"}}.Bytes());
  EXPECT_THAT(Visible(menus().mnuori), ElementsAre("Default", "ITALIANO", "ENGLISH"));
  EXPECT_THAT(Visible(menus().mnuDes), ElementsAre("Default", "ITALIANO", "ENGLISH"));
  EXPECT_THAT(Visible(menus().mnuNew), ElementsAre("Default", "ITALIANO", "ENGLISH"));
}

TEST_F(MesReaderTest, ShowsOneOriginForAFileWithOnlyTheDefaultBlock) {
  Open("FILE.MES", MesFile{.names = {"Default"}}.Bytes());
  EXPECT_THAT(Visible(menus().mnuori), ElementsAre("Default"));
}

TEST_F(MesReaderTest, TrimsNamesOnTheRightOnly) {
  Open("FILE.MES", MesFile{.names = {"Default", "  ITALIANO  "}}.Bytes());
  EXPECT_EQ(menus().mnuDes[1].caption, "  ITALIANO");
}

TEST_F(MesReaderTest, ShowsNamesInUtf8) {
  Open("FILE.MES", MesFile{.names = {"Default", "PORTUGU\xCAS"}}.Bytes());
  EXPECT_EQ(menus().mnuDes[1].caption, "PORTUGUÊS");
}

TEST_F(MesReaderTest, ShowsNoLanguageBeyondEntry100) {
  MesFile file;
  file.names.assign(103, "X");
  Open("FILE.MES", file.Bytes());
  EXPECT_THAT(Visible(menus().mnuDes), SizeIs(101));
}

TEST_F(MesReaderTest, OffersOriginAndCompilerButNoDestinationYet) {
  Open("FILE.MES", MesFile().Bytes());
  EXPECT_TRUE(menus().mnuOrig.enabled);
  EXPECT_TRUE(menus().mnuMake.enabled);
  EXPECT_FALSE(menus().mnuNew[0].enabled);
  EXPECT_FALSE(menus().mnuDest.enabled);
}

TEST_F(MesReaderTest, ResetsTheEditor) {
  EditAnotherFile();
  Open("FILE.MES", MesFile().Bytes());
  ExpectResetEditor();
  EXPECT_FALSE(view().Label8Enabled[0] || view().Label8Enabled[1]);
  EXPECT_FALSE(view().Label9Visible);
  EXPECT_FALSE(view().Command2Visible);
  EXPECT_EQ(view().height, 2925);
  EXPECT_EQ(view().caption, "FILE.MES");
}

TEST_F(MesReaderTest, ResetsTheSet) {
  EditAnotherFile();
  Open("FILE.MES", MesFile().Bytes());
  ExpectResetSet();
  EXPECT_EQ(set_.HeaderBit1, kFalse);
  EXPECT_EQ(set_.HeaderBit0, kFalse);
}

TEST_F(MesReaderTest, ForgetsTheLanguagesOfTheFileBefore) {
  EditAnotherFile();
  Open("FILE.MES", MesFile{.names = {"Default"}}.Bytes());
  const MenuState menus = this->menus();
  for (const auto* menu : {&menus.mnuori, &menus.mnuDes, &menus.mnuNew}) {
    EXPECT_THAT(Visible(*menu), ElementsAre("Default"));
    EXPECT_EQ((*menu)[1].caption, "");
    EXPECT_EQ((*menu)[2].caption, "");
  }
}

TEST_F(MesReaderTest, LetsPendingEventsRunOnce) {
  EditAnotherFile();
  Open("FILE.MES", MesFile().Bytes());
  EXPECT_EQ(dialogs_.pending_event_runs, 1);
}

TEST_F(MesReaderTest, CountsTheFileAsOpened) {
  Open("FILE.MES", MesFile().Bytes());
  const std::uint32_t opened = set_.OpenedFiles;
  Open("FILE.MES", MesFile().Bytes());
  EXPECT_EQ(set_.OpenedFiles, opened + 1);
  engine_.reader.Reload();
  EXPECT_EQ(set_.OpenedFiles, opened + 1);
}

TEST_F(MesReaderTest, RefusesAHeaderThatIsCut) {
  for (std::size_t size = 0; size < 24; ++size) {
    EXPECT_THAT(ReasonAgainstOpening("FILE.MES", MesFile().Bytes().substr(0, size)),
                HasSubstr((folder_ / "FILE.MES").string()))
        << size;
  }
}

TEST_F(MesReaderTest, RefusesAFileWithoutTheNameOfItsFirstBlock) {
  const std::string bytes = MesFile().Bytes();
  EXPECT_NE(ReasonAgainstOpening("FILE.MES", bytes.substr(0, 43)), "none");
  EXPECT_EQ(ReasonAgainstOpening("FILE.MES", bytes.substr(0, 44)), "none");
}

TEST_F(MesReaderTest, NamesFilePlaceAndValueOfABadHeaderField) {
  const std::string reason =
      ReasonAgainstOpening("FILE.MES", MesFile{.header_count = "0O01"}.Bytes());
  EXPECT_THAT(reason, HasSubstr((folder_ / "FILE.MES").string()));
  EXPECT_THAT(reason, HasSubstr("HeaderCount at position 5"));
  EXPECT_THAT(reason, HasSubstr("\"0O01\""));
}

TEST_F(MesReaderTest, RefusesLangCountZero) {
  std::string bytes = MesFile().Bytes();
  bytes[0] = '\0';
  EXPECT_THAT(ReasonAgainstOpening("FILE.MES", bytes), HasSubstr("number of languages is 0"));
}

TEST_F(MesReaderTest, ShowsTheFirst40CellsOfAWiderSet) {
  const MesFile file{.width = 60};
  Open("FILE.MES", file.Bytes());
  engine_.languages.ChooseOrigin(1);
  EXPECT_EQ(set_.LastCol, 59);
  EXPECT_EQ(Origin(2), file.Message(1, 2).substr(0, 40));
}

TEST_F(MesReaderTest, OpensASetOfMoreMessagesThanAResetEmpties) {
  Open("FILE.MES", MesFile{.last_msg = 599, .stride = 599}.Bytes());
  engine_.languages.ChooseOrigin(0);
  engine_.languages.ChooseDestination(1);
  engine_.editing.GoTo(599);
  engine_.editing.ChangeText(Codes("last"));
  EXPECT_EQ(Destination(599), "last");
}

// 16 x (2047 + 1) + 20 bytes wrap to -32748.
TEST_F(MesReaderTest, RefusesABlockLengthThatLeadsBeforeTheStartOfTheFile) {
  const MesFile file{.lang_count = 1, .width = 16, .stride = 2047, .names = {"Default"}};
  EXPECT_THAT(ReasonAgainstOpening("FILE.MES", file.Bytes()), HasSubstr("-32748"));
}

// 16 x (4095 + 1) + 20 bytes wrap to 20.
TEST_F(MesReaderTest, TakesABlockLengthThatWrapsToAPositiveValue) {
  std::string bytes = MesFile{.lang_count = 1, .width = 16, .names = {"Default"}}.Bytes();
  bytes.replace(20, 4, "FFF0");
  Open("FILE.MES", bytes);
  EXPECT_EQ(set_.LangStride, 4095);
  EXPECT_EQ(set_.BlockLength, 20.0F);
  EXPECT_EQ(menus().mnuDes[1].caption, "00000000000000000111");
}

TEST_F(MesReaderTest, ReloadsWhatChangedInTheFile) {
  Open("FILE.MES", MesFile().Bytes());
  folder_.Write("FILE.MES", MesFile{.last_msg = 1, .names = {"Default", "X", "Y"}}.Bytes());
  EXPECT_TRUE(engine_.reader.Reload());
  EXPECT_EQ(set_.LastMsg, 1);
  EXPECT_THAT(Visible(menus().mnuDes), ElementsAre("Default", "X", "Y"));
}

TEST_F(MesReaderTest, ReloadsNothingWithoutAnOpenFile) {
  EXPECT_TRUE(engine_.reader.Reload());
  EXPECT_FALSE(menus().mnuOrig.enabled);
}

}  // namespace
}  // namespace vendlingua
