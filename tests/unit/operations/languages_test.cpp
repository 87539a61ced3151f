#include "core/operations/languages.h"

#include <gmock/gmock.h>

#include <filesystem>

#include "core/platform/errors.h"
#include "support/engine_test.h"

namespace vendlingua {
namespace {

using test::MesFile;
using test::Slurp;
using test::Text;
using testing::IsEmpty;
using testing::SizeIs;

class MesLanguagesTest : public test::EngineTest {
 protected:
  MesLanguagesTest() { Open("FILE.MES", file_.Bytes()); }

  MesFile file_{.names = {"Default", "ITALIANO", "ENGLISH"}};
};

// A file with the greatest number of languages.
class FullFileTest : public test::EngineTest {
 protected:
  FullFileTest() {
    MesFile file;
    while (file.names.size() <= 100) {
      file.names.push_back("LANGUAGE " + std::to_string(file.names.size()));
    }
    Open("FULL.MES", file.Bytes());
  }
};

TEST_F(MesLanguagesTest, TakesTheOriginFromItsBlock) {
  engine_.languages.ChooseOrigin(0);
  EXPECT_EQ(Origin(0), file_.Message(0, 0));
  engine_.languages.ChooseOrigin(2);
  EXPECT_EQ(Origin(0), "2000");
  EXPECT_EQ(Origin(1), "2111");
  EXPECT_EQ(Origin(2), "2222");
}

TEST_F(MesLanguagesTest, StoresTextsLeftAlignedIn40Cells) {
  engine_.languages.ChooseOrigin(1);
  EXPECT_EQ(Text(set_.OriginText[1].Cells()), "1111" + std::string(36, ' '));
}

TEST_F(MesLanguagesTest, LaysTheViewOutForTheOrigin) {
  engine_.languages.ChooseOrigin(1);
  EXPECT_EQ(view().HScroll1.max, 2);
  EXPECT_EQ(view().Text1.max_length, 5U);
  EXPECT_EQ(view().label_width, 186 * 3 + 206);
}

TEST_F(MesLanguagesTest, ShowsTheOrigin) {
  engine_.languages.ChooseOrigin(1);
  EXPECT_EQ(view().Label5[0].caption, '1');
  EXPECT_EQ(view().Label5[1].caption, '0');
  EXPECT_TRUE(view().Label5[3].visible);
  EXPECT_FALSE(view().Label5[4].visible);
  EXPECT_TRUE(view().Label8Enabled[0]);
  EXPECT_TRUE(view().HScroll1.enabled);
  EXPECT_TRUE(menus().mnuDest.enabled);
}

TEST_F(MesLanguagesTest, DoesNotMarkTheSetChangedForAnOrigin) {
  engine_.languages.ChooseOrigin(1);
  EXPECT_EQ(set_.Modified, kFalse);
}

TEST_F(MesLanguagesTest, TakesTheDestinationFromItsBlock) {
  EXPECT_EQ(engine_.languages.ChooseDestination(2), DestinationOutcome::kOpened);
  EXPECT_EQ(set_.DestLang, 2);
  EXPECT_EQ(Destination(0), "2000");
  EXPECT_EQ(Destination(2), "2222");
}

TEST_F(MesLanguagesTest, OpensTheDestinationForEditing) {
  engine_.languages.ChooseDestination(1);
  EXPECT_TRUE(view().Label8Enabled[1]);
  EXPECT_TRUE(view().Command1Enabled);
  EXPECT_TRUE(view().Text1.enabled);
  EXPECT_TRUE(menus().mnuTLCD.enabled);
  EXPECT_TRUE(menus().mnuSave.enabled);
  EXPECT_TRUE(menus().mnuSaas.enabled);
}

TEST_F(MesLanguagesTest, ShowsTheDestination) {
  engine_.languages.ChooseDestination(2);
  EXPECT_EQ(Text(view().Text1.text), "2000");
}

TEST_F(MesLanguagesTest, HasNoEffectOfItsOwnForDestinationZero) {
  set_.Modified = kTrue;
  set_.DestLang = 1;
  EXPECT_EQ(engine_.languages.ChooseDestination(0), DestinationOutcome::kNothingChosen);
  EXPECT_THAT(dialogs_.messages, IsEmpty());
  EXPECT_EQ(set_.DestLang, 1);
  EXPECT_EQ(set_.Modified, kTrue);
  EXPECT_FALSE(view().Text1.enabled);
}

TEST_F(MesLanguagesTest, SavesPendingChangesBeforeAnotherDestinationWhenTheUserWantsIt) {
  engine_.languages.ChooseOrigin(0);
  engine_.languages.ChooseDestination(1);
  engine_.editing.ChangeText(test::Codes("abcd"));
  set_.Modified = kTrue;
  dialogs_.yes_no_answers = {MessageAnswer::kYes};
  engine_.languages.ChooseDestination(2);
  EXPECT_EQ(dialogs_.messages.at(0).text, "text 43");
  EXPECT_EQ(dialogs_.messages.at(0).title, "text 42");
  EXPECT_EQ(Slurp(folder_ / "FILE.MES").substr(24 + 36 + 20, 4), "abcd");
  EXPECT_EQ(set_.DestLang, 2);
  EXPECT_EQ(Destination(0), "2000");
}

TEST_F(MesLanguagesTest, DropsPendingChangesWhenTheUserDeclines) {
  engine_.languages.ChooseOrigin(0);
  engine_.languages.ChooseDestination(1);
  engine_.editing.ChangeText(test::Codes("abcd"));
  set_.Modified = kTrue;
  dialogs_.yes_no_answers = {MessageAnswer::kNo};
  engine_.languages.ChooseDestination(2);
  EXPECT_EQ(Slurp(folder_ / "FILE.MES"), file_.Bytes());
  EXPECT_EQ(Destination(0), "2000");
  EXPECT_EQ(set_.Modified, kFalse);
}

// Going on would lose the edits that could not be saved.
TEST_F(MesLanguagesTest, KeepsTheDestinationWhenSavingFails) {
  engine_.languages.ChooseOrigin(0);
  engine_.languages.ChooseDestination(1);
  engine_.editing.ChangeText(test::Codes("abcd"));
  set_.Modified = kTrue;
  std::filesystem::remove(folder_ / "FILE.MES");
  dialogs_.yes_no_answers = {MessageAnswer::kYes};
  EXPECT_EQ(engine_.languages.ChooseDestination(2), DestinationOutcome::kNotSaved);
  EXPECT_EQ(set_.DestLang, 1);
  EXPECT_EQ(Text(view().Text1.text), "abcd");
}

TEST_F(MesLanguagesTest, StartsANewLanguageBlank) {
  engine_.languages.ChooseDestination(1);
  engine_.languages.StartNewLanguage(0);
  for (std::size_t message = 0; message <= 2; ++message) {
    EXPECT_EQ(set_.DestText[message], DisplayText()) << message;
  }
}

TEST_F(MesLanguagesTest, StartsANewLanguageFromTheTextsOfAnother) {
  engine_.languages.StartNewLanguage(2);
  EXPECT_EQ(Destination(1), "2111");
}

TEST_F(MesLanguagesTest, MarksTheSetChangedForANewLanguageWithoutAName) {
  engine_.languages.StartNewLanguage(2);
  EXPECT_EQ(set_.DestLang, 0);
  EXPECT_EQ(set_.Modified, kTrue);
  EXPECT_TRUE(view().Text1.enabled);
}

TEST_F(MesLanguagesTest, StartsNoNewLanguageFromTextsThatCannotBeRead) {
  engine_.languages.ChooseDestination(1);
  std::filesystem::remove(folder_ / "FILE.MES");
  EXPECT_THROW(engine_.languages.StartNewLanguage(2), FileError);
  EXPECT_EQ(set_.DestLang, 1);
  EXPECT_EQ(set_.Modified, kFalse);
  EXPECT_EQ(Destination(0), "1000");
}

TEST_F(MesLanguagesTest, AsksToSaveANewLanguageThatIsLeft) {
  engine_.languages.StartNewLanguage(0);
  dialogs_.yes_no_answers = {MessageAnswer::kNo};
  engine_.writer.NonSave();
  ASSERT_THAT(dialogs_.messages, SizeIs(1));
  EXPECT_EQ(dialogs_.messages[0].text, "text 43");
}

TEST_F(MesLanguagesTest, ChecksTheOpenLanguages) {
  engine_.languages.ChooseOrigin(1);
  EXPECT_TRUE(menus().mnuori[1].checked);
  EXPECT_FALSE(menus().mnuDes[1].checked);
  engine_.languages.ChooseDestination(2);
  EXPECT_TRUE(menus().mnuDes[2].checked);
  EXPECT_FALSE(menus().mnuori[2].checked);
}

TEST_F(MesLanguagesTest, AllowsANewDestinationWhenTheMenuOpens) {
  EXPECT_TRUE(menus().mnuDes[0].enabled);
}

TEST_F(MesLanguagesTest, ReadsMessagesBehindTheEndOfTheFileAsBlanks) {
  engine_.languages.ChooseDestination(1);
  engine_.languages.ChooseDestination(5);
  EXPECT_EQ(set_.DestText[0], DisplayText());
}

TEST_F(MesLanguagesTest, ChangesNothingWhenTheFileCannotBeRead) {
  engine_.languages.ChooseOrigin(0);
  engine_.languages.ChooseDestination(1);
  std::filesystem::remove(folder_ / "FILE.MES");
  EXPECT_THROW(engine_.languages.ChooseOrigin(2), FileError);
  EXPECT_THROW(engine_.languages.ChooseDestination(2), FileError);
  EXPECT_EQ(Origin(0), "0000");
  EXPECT_EQ(Destination(0), "1000");
  EXPECT_EQ(set_.DestLang, 1);
}

TEST_F(MesLanguagesTest, ChangesNothingWhenTheFileEndsInsideAMessage) {
  engine_.languages.ChooseDestination(1);
  folder_.Write("FILE.MES", file_.Bytes().substr(0, 24 + 2 * 36 + 20 + 6));
  EXPECT_THROW(engine_.languages.ChooseDestination(2), FileError);
  EXPECT_EQ(Destination(0), "1000");
  EXPECT_EQ(set_.DestLang, 1);
}

TEST_F(MesLanguagesTest, OpensNoDestinationThatIsTooWideToEdit) {
  Open("WIDE.MES", MesFile{.width = 41}.Bytes());
  engine_.languages.ChooseOrigin(1);
  EXPECT_THROW(engine_.languages.ChooseDestination(1), FileError);
  EXPECT_THROW(engine_.languages.StartNewLanguage(0), FileError);
  EXPECT_EQ(set_.phase, Phase::kOriginChosen);
  EXPECT_EQ(set_.Modified, kFalse);
}

TEST_F(MesLanguagesTest, KeepsWhatIsTypedForAnotherOrigin) {
  engine_.languages.ChooseOrigin(0);
  engine_.languages.ChooseDestination(1);
  engine_.editing.ChangeText(test::Codes("new"));
  engine_.languages.ChooseOrigin(2);
  EXPECT_EQ(Destination(0), "new ");
  EXPECT_EQ(Text(view().Text1.text), "new");
  engine_.writer.Save();
  EXPECT_EQ(Slurp(folder_ / "FILE.MES").substr(24 + 36 + 20, 4), "new ");
}

// Without a destination that save makes a new file.
TEST_F(MesLanguagesTest, OpensNoLanguageThatTheFileSavedBeforeIsWithout) {
  engine_.editing.ChooseDisplayType(1);
  dialogs_.yes_no_answers = {MessageAnswer::kYes};
  dialogs_.input_answers = {"NEW"};
  dialogs_.file_answers = {folder_ / "NEW.MES"};
  EXPECT_EQ(engine_.languages.ChooseDestination(2), DestinationOutcome::kNothingChosen);
  EXPECT_THAT(set_.language_names, testing::ElementsAre("Default", "NEW"));
  EXPECT_FALSE(set_.DestinationIsOpen());
}

TEST_F(FullFileTest, DisablesTheNewDestinationWhenTheMenuOpens) {
  EXPECT_FALSE(menus().mnuDes[0].enabled);
}

TEST_F(FullFileTest, RefusesANewLanguage) {
  EXPECT_EQ(engine_.languages.ChooseDestination(kNewLanguage), DestinationOutcome::kFileIsFull);
  ASSERT_THAT(dialogs_.messages, SizeIs(1));
  EXPECT_EQ(dialogs_.messages[0].text, "text 31");
  EXPECT_EQ(dialogs_.messages[0].title, "text 30");
  EXPECT_EQ(dialogs_.messages[0].icon, MessageIcon::kInformation);
}

TEST_F(FullFileTest, ChangesNothingWhenItRefusesANewLanguage) {
  engine_.languages.ChooseDestination(3);
  engine_.languages.StartNewLanguage(0);
  EXPECT_THAT(dialogs_.messages, SizeIs(1));
  EXPECT_EQ(set_.DestLang, 3);
  EXPECT_EQ(set_.Modified, kFalse);
  EXPECT_EQ(Destination(0), "3000");
}

TEST_F(FullFileTest, OpensItsLastLanguage) {
  engine_.languages.ChooseDestination(100);
  EXPECT_EQ(set_.DestLang, 100);
  EXPECT_EQ(Destination(1), "0111");  // the digit of block 100
}

}  // namespace
}  // namespace vendlingua
