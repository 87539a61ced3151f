#include <string>

#include "unit/operations/message_file_reader_test.h"

namespace vendlingua {
namespace {

using test::MesFile;
using test::MsxFile;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

using MsxReaderTest = test::MessageFileReaderTest;

TEST_F(MsxReaderTest, TakesTheBuiltInDimensions) {
  Open("FILE.MSX", MsxFile(1));
  EXPECT_EQ(set_.LastCol, 15);
  EXPECT_EQ(set_.HeaderBit1, kTrue);
  EXPECT_EQ(set_.HeaderBit0, kTrue);
  EXPECT_EQ(set_.HeaderCount, 171);
  EXPECT_EQ(set_.LastMsg, 454);
  EXPECT_EQ(set_.MemStart, 0xFF0000U);
  EXPECT_EQ(set_.MemLength, 65520U);
  EXPECT_EQ(set_.LangStride, 455);
  EXPECT_TRUE(menus().mnuLCD[0].checked);
}

TEST_F(MsxReaderTest, LeavesLangCountAsItIs) {
  Open("OTHER.MES", MesFile{.lang_count = 3}.Bytes());
  Open("FILE.MSX", MsxFile(1));
  EXPECT_EQ(set_.LangCount, 3);
}

TEST_F(MsxReaderTest, ShowsItsLanguagesFromEntry1On) {
  Open("FILE.MSX", MsxFile(2));
  EXPECT_THAT(Visible(menus().mnuori, 1), ElementsAre("LANGUAGE 1", "LANGUAGE 2"));
  EXPECT_THAT(Visible(menus().mnuDes, 1), ElementsAre("LANGUAGE 1", "LANGUAGE 2"));
}

TEST_F(MsxReaderTest, CaptionsNewLanguagesWithText14AndTheName) {
  Open("FILE.MSX", MsxFile(2));
  EXPECT_THAT(Visible(menus().mnuNew, 1), ElementsAre("text 14 LANGUAGE 1", "text 14 LANGUAGE 2"));
}

TEST_F(MsxReaderTest, ShowsNineLanguagesAtMost) {
  Open("FILE.MSX", MsxFile(10));
  EXPECT_THAT(Visible(menus().mnuDes, 1), SizeIs(9));
}

TEST_F(MsxReaderTest, NamesNoEntry0OfTheFile) {
  Open("FILE.MSX", MsxFile(1));
  EXPECT_EQ(menus().mnuori[0].caption, "Italiano");
  EXPECT_EQ(menus().mnuDes[0].caption, "text 8");
  EXPECT_EQ(menus().mnuNew[0].caption, "text 8");
}

TEST_F(MsxReaderTest, ForgetsTheEntry0OfTheMesFileBefore) {
  EditAnotherFile();
  ASSERT_EQ(menus().mnuori[0].caption, "Default");
  Open("FILE.MSX", MsxFile(1));
  EXPECT_EQ(menus().mnuori[0].caption, "Italiano");
  EXPECT_EQ(menus().mnuDes[0].caption, "text 8");
  EXPECT_EQ(menus().mnuNew[0].caption, "text 8");
}

TEST_F(MsxReaderTest, OffersOriginAndCompilerButNoDestinationYet) {
  Open("FILE.MSX", MsxFile(1));
  EXPECT_TRUE(menus().mnuOrig.enabled);
  EXPECT_TRUE(menus().mnuMake.enabled);
  EXPECT_FALSE(menus().mnuNew[0].enabled);
  EXPECT_FALSE(menus().mnuDest.enabled);
}

TEST_F(MsxReaderTest, ResetsEditorSetAndMenus) {
  EditAnotherFile();
  Open("FILE.MSX", MsxFile(1));
  ExpectResetEditor();
  ExpectResetSet();
  EXPECT_THAT(Visible(menus().mnuori, 1), ElementsAre("LANGUAGE 1"));
  EXPECT_EQ(menus().mnuDes[2].caption, "");
  EXPECT_EQ(menus().mnuNew[2].caption, "");
}

TEST_F(MsxReaderTest, ResetsHeadingsAndCaptionAndHidesTheButtonForANewMessage) {
  EditAnotherFile();
  Open("FILE.MSX", MsxFile(1));
  EXPECT_FALSE(view().Label8Enabled[0] || view().Label8Enabled[1]);
  EXPECT_FALSE(view().Label9Visible);
  EXPECT_FALSE(view().Command2Visible);
  EXPECT_EQ(view().caption, "FILE.MSX");
}

TEST_F(MsxReaderTest, KeepsTheHeightOfTheWindow) {
  EditAnotherFile();
  Open("FILE.MSX", MsxFile(1));
  EXPECT_EQ(view().height, WindowState::kFullHeight);
}

TEST_F(MsxReaderTest, HidesALanguageThatIsGoneWhenItReadsAgain) {
  Open("FILE.MSX", MsxFile(2));
  folder_.Write("FILE.MSX", MsxFile(1));
  engine_.reader.Reload();
  EXPECT_THAT(Visible(menus().mnuori, 1), ElementsAre("LANGUAGE 1"));
  EXPECT_THAT(Visible(menus().mnuDes, 1), ElementsAre("LANGUAGE 1"));
}

TEST_F(MsxReaderTest, TellsThatAFirmwareIsNotManaged) {
  EXPECT_EQ(Open("FILE.MSX", MsxFile(1, "0267")), OpenOutcome::kRefused);
  ASSERT_THAT(dialogs_.messages, SizeIs(1));
  EXPECT_EQ(dialogs_.messages[0].icon, MessageIcon::kCritical);
  EXPECT_EQ(dialogs_.messages[0].text, " File not managed ! ");
  EXPECT_EQ(dialogs_.messages[0].title, "ERROR");
  EXPECT_EQ(dialogs_.messages[0].buttons, MessageButtons::kOk);
}

TEST_F(MsxReaderTest, ShowsNoLanguageOfAFirmwareThatIsNotManaged) {
  EditAnotherFile();
  Open("FILE.MSX", MsxFile(1, "0267"));
  EXPECT_THAT(Visible(menus().mnuori, 1), IsEmpty());
  EXPECT_THAT(Visible(menus().mnuDes, 1), IsEmpty());
  EXPECT_THAT(Visible(menus().mnuNew, 1), IsEmpty());
  EXPECT_FALSE(menus().mnuOrig.enabled);
  EXPECT_FALSE(menus().mnuMake.enabled);
  ExpectResetEditor();
}

TEST_F(MsxReaderTest, RefusesAnEmptyFile) {
  EXPECT_EQ(Open("FILE.MSX", ""), OpenOutcome::kRefused);
  EXPECT_THAT(dialogs_.messages, SizeIs(1));
}

TEST_F(MsxReaderTest, NamesFileAndLineOfABadName) {
  std::string content = MsxFile(1);
  content.replace(content.find(test::HexOf("   LANGUAGE 1   ")), 2, "?!");
  const std::string reason = ReasonAgainstOpening("FILE.MSX", content);
  EXPECT_THAT(reason, HasSubstr((folder_ / "FILE.MSX").string()));
  EXPECT_THAT(reason, HasSubstr("line 171 "));
}

}  // namespace
}  // namespace vendlingua
