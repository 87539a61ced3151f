#include <filesystem>
#include <string>

#include "unit/operations/message_file_writer_test.h"

namespace vendlingua {
namespace {

namespace fs = std::filesystem;
using test::MesFile;
using test::Slurp;
using ::testing::HasSubstr;
using ::testing::SizeIs;

class NewMesLanguage : public test::EditedMesFile {
 protected:
  NewMesLanguage() { StartNewLanguage(MesFile()); }
};

TEST_F(NewMesLanguage, IsNamedWhenItIsSaved) {
  dialogs_.input_answers = {"english"};
  ExpectSaved();
  ASSERT_THAT(dialogs_.inputs, SizeIs(1));
  EXPECT_EQ(dialogs_.inputs[0].purpose, InputPurpose::kNewLanguageName);
  EXPECT_EQ(dialogs_.inputs[0].prompt, "text 45");
  EXPECT_EQ(dialogs_.inputs[0].title, "text 46");
  EXPECT_EQ(dialogs_.inputs[0].default_answer, "");
}

TEST_F(NewMesLanguage, GetsTheBlockOfTheFirstFreeEntry) {
  SetDestination(1, "NEW1");
  dialogs_.input_answers = {"english"};
  EXPECT_EQ(Saved(), bytes_ + "ENGLISH                 NEW1    ");
  EXPECT_EQ(set_.DestLang, 2);
}

TEST_F(NewMesLanguage, IsShownInTheMenusWhenItIsSaved) {
  dialogs_.input_answers = {"english"};
  ExpectSaved();
  EXPECT_TRUE(menus().mnuDes[2].visible);
  EXPECT_EQ(menus().mnuDes[2].caption, "ENGLISH");
  EXPECT_EQ(menus().mnuori[2].caption, "ENGLISH");
}

TEST_F(NewMesLanguage, IsNotReadAgainWhileTheDestinationMenuIsDisabled) {
  set_.phase = Phase::kFileOpen;
  set_.file_was_imported = true;
  set_.MemStart = 1;  // the file says 0x6000
  dialogs_.input_answers = {"english"};
  ExpectSaved();
  EXPECT_EQ(set_.MemStart, 1U);
  EXPECT_TRUE(menus().mnuDes[2].visible);
  EXPECT_EQ(menus().mnuDes[2].caption, "ENGLISH");
}

TEST_F(NewMesLanguage, TakesTheFirstDestinationEntryThatIsNotShown) {
  set_.language_names.resize(1);
  dialogs_.input_answers = {"english"};
  EXPECT_EQ(Saved(), Patched(60, "ENGLISH                         "));
  EXPECT_EQ(set_.DestLang, 1);
}

// The block before ends with its last message; its free slot is filled with 0.
TEST_F(NewMesLanguage, LeavesAGapOfZerosBehindAShortBlock) {
  dialogs_.input_answers = {"english"};
  const std::string two_languages = Saved();
  engine_.languages.StartNewLanguage(0);
  dialogs_.input_answers = {"deutsch"};
  EXPECT_EQ(Saved(),
            two_languages + std::string(4, '\0') + "DEUTSCH             " + std::string(12, ' '));
}

TEST_F(NewMesLanguage, StartsFromTheTextsOfAnotherOne) {
  dialogs_.yes_no_answers = {MessageAnswer::kNo};
  engine_.languages.StartNewLanguage(1);
  dialogs_.input_answers = {"english"};
  EXPECT_EQ(Saved(), bytes_ + "ENGLISH             100011111222");
}

TEST_F(NewMesLanguage, IsPaddedCutAndRaisedInName) {
  dialogs_.input_answers = {"português do brasil novo"};
  EXPECT_EQ(Saved().substr(96, 20), "PORTUGU\xCAS DO BRASIL ");
}

TEST_F(NewMesLanguage, IsAskedForAgainWithoutAName) {
  dialogs_.input_answers = {"", " ", std::string(20, ' ') + "x", "english"};
  EXPECT_EQ(Saved().substr(96, 20), "ENGLISH             ");
  ASSERT_THAT(dialogs_.messages, SizeIs(3));
  for (const MessageRequest& message : dialogs_.messages) {
    EXPECT_EQ(message.icon, MessageIcon::kCritical);
    EXPECT_EQ(message.text, "text 32");
    EXPECT_EQ(message.title, "");
  }
}

TEST_F(NewMesLanguage, IsAskedForAgainUnderANameThatIsTaken) {
  dialogs_.input_answers = {"italiano  ", "english"};
  EXPECT_EQ(Saved().substr(96, 20), "ENGLISH             ");
  ASSERT_THAT(dialogs_.messages, SizeIs(1));
  EXPECT_EQ(dialogs_.messages[0].icon, MessageIcon::kExclamation);
  EXPECT_EQ(dialogs_.messages[0].text, "text 34\nITALIANO            \ntext 35");
  EXPECT_EQ(dialogs_.messages[0].title, "");
}

TEST_F(NewMesLanguage, MayTakeTheCaptionOfEntry0) {
  set_.language_names[0] = "ENGLISH";
  dialogs_.input_answers = {"english"};
  EXPECT_EQ(Saved().substr(96, 7), "ENGLISH");
}

TEST_F(NewMesLanguage, MayTakeANameThatDiffersInCase) {
  set_.language_names[1] = "English";
  dialogs_.input_answers = {"English"};
  EXPECT_EQ(Saved().substr(96, 7), "ENGLISH");
}

TEST_F(NewMesLanguage, IsAskedForAgainUnderANameThatTheDisplayCannotShow) {
  dialogs_.input_answers = {"РУССКИЙ", "russo"};
  EXPECT_EQ(Saved().substr(96, 5), "RUSSO");
  ASSERT_THAT(dialogs_.messages, SizeIs(1));
  EXPECT_EQ(dialogs_.messages[0].icon, MessageIcon::kCritical);
  EXPECT_THAT(dialogs_.messages[0].text, HasSubstr("РУССКИЙ"));
}

TEST_F(NewMesLanguage, StaysNewWhenItCannotBeSaved) {
  fs::remove(folder_ / "FILE.MES");
  dialogs_.input_answers = {"english"};
  ReasonOfFailure();
  EXPECT_EQ(set_.DestLang, 0);
  EXPECT_FALSE(menus().mnuDes[2].visible);
  folder_.Write("FILE.MES", bytes_);
  dialogs_.input_answers = {"english"};
  EXPECT_EQ(Saved().substr(96, 7), "ENGLISH");
}

TEST_F(NewMesLanguage, IsRefusedBehindOneHundred) {
  MesFile full;
  while (full.names.size() <= 100) {
    full.names.push_back("LANGUAGE " + std::to_string(full.names.size()));
  }
  dialogs_.yes_no_answers = {MessageAnswer::kNo};
  Edit(full);
  set_.DestLang = 0;
  dialogs_.input_answers = {"english"};
  EXPECT_THAT(ReasonOfFailure(), HasSubstr("100 languages"));
  EXPECT_EQ(Slurp(folder_ / "FILE.MES"), bytes_);
}

}  // namespace
}  // namespace vendlingua
