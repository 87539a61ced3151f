#include "core/operations/unsaved_edits.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <optional>
#include <string>
#include <utility>

#include "core/platform/errors.h"
#include "core/platform/record_bytes.h"
#include "support/engine_test.h"

namespace vendlingua {
namespace {

namespace fs = std::filesystem;
using test::Codes;
using test::MesFile;
using test::Slurp;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

// What a program run edits before it ends without a save, and what the next one makes of that.
class UnsavedEditsTest : public test::EngineTest {
 protected:
  // A program that is ended leaves its journal, but no lock.
  class Killed {
   public:
    explicit Killed(UnsavedEditsTest& test) : test_(test) {
      engine_->workspace.folders.journals = test.Journals();
    }
    void Edit(int destination = 1) {
      dialogs_.file_answers = {test_.path_};
      engine_->opener.Open();
      engine_->languages.ChooseOrigin(0);
      if (destination == 0) {
        engine_->languages.StartNewLanguage(1);
      } else {
        engine_->languages.ChooseDestination(destination);
      }
    }
    void Type(std::size_t message, std::string_view text) {
      engine_->workspace.set.SetText(message, Codes(text));
    }
    MessageSet& set() { return engine_->workspace.set; }
    Engine& engine() { return *engine_; }
    // The bytes survive, the program does not.
    ~Killed() {
      engine_->unsaved_edits.Keep();
      const fs::path journals = test_.Journals();
      const fs::path survived = test_.folder_ / "survived";
      if (fs::exists(journals)) {
        fs::copy(journals, survived);
      }
      engine_.reset();
      if (fs::exists(survived)) {
        fs::remove_all(journals);
        fs::rename(survived, journals);
      }
    }

   private:
    UnsavedEditsTest& test_;
    test::ScriptedDialogs dialogs_;
    std::optional<Engine> engine_{std::in_place, dialogs_};
  };

  UnsavedEditsTest() { engine_.workspace.folders.journals = Journals(); }

  fs::path Journals() const { return folder_ / "data" / "journals"; }
  std::size_t JournalCount() const {
    return fs::exists(Journals())
               ? static_cast<std::size_t>(
                     std::distance(fs::directory_iterator(Journals()), fs::directory_iterator()))
               : 0;
  }

  void OpenAgain(std::initializer_list<MessageAnswer> answers) {
    dialogs_.yes_no_answers = answers;
    Open(path_);
    engine_.unsaved_edits.Offer();
  }

  const std::string content_ = MesFile({.names = {"Default", "ITALIANO", "ENGLISH"}}).Bytes();
  const fs::path path_ = folder_.Write("FILE.MES", content_);
};

TEST_F(UnsavedEditsTest, AreOfferedWhenTheSameFileIsOpened) {
  {
    Killed program(*this);
    program.Edit(2);
    program.Type(0, "one");
    program.engine().unsaved_edits.Keep();
    program.Type(2, "two");
    program.Type(0, "last");
  }
  OpenAgain({MessageAnswer::kYes});
  ASSERT_THAT(dialogs_.messages, SizeIs(1));
  EXPECT_THAT(dialogs_.messages[0].text, HasSubstr("FILE.MES"));
  EXPECT_THAT(dialogs_.messages[0].text, HasSubstr("2 messages"));
  EXPECT_EQ(set_.DestLang, 2);
  EXPECT_EQ(set_.origin_language, 0);
  EXPECT_EQ(Destination(0), "last");
  EXPECT_EQ(Destination(1), "2111");
  EXPECT_EQ(Destination(2), "two ");
  EXPECT_NE(set_.Modified, kFalse);
  EXPECT_EQ(Slurp(path_), content_) << "nothing is saved by itself";
  engine_.editing.Undo();
  EXPECT_EQ(Destination(0), "2000");
  EXPECT_EQ(JournalCount(), 1U) << "that of the edits of now";
}

TEST_F(UnsavedEditsTest, AreGoneWhenTheyAreDeclined) {
  {
    Killed program(*this);
    program.Edit();
    program.Type(0, "one");
  }
  OpenAgain({MessageAnswer::kNo});
  EXPECT_EQ(set_.phase, Phase::kFileOpen);
  EXPECT_EQ(JournalCount(), 0U);
  OpenAgain({});
  EXPECT_THAT(dialogs_.messages, SizeIs(1));
}

TEST_F(UnsavedEditsTest, AreNotKeptAnyMoreWhenTheyAreSaved) {
  {
    Killed program(*this);
    program.Edit();
    program.Type(0, "one");
    program.engine().unsaved_edits.Keep();
    EXPECT_EQ(JournalCount(), 1U);
    program.engine().writer.Save();
    EXPECT_TRUE(program.engine().unsaved_edits.IsBehind());
  }
  EXPECT_EQ(JournalCount(), 0U);
}

TEST_F(UnsavedEditsTest, AreKeptWhenASaveFails) {
  {
    Killed program(*this);
    program.Edit();
    program.Type(0, "one");
    fs::rename(path_, folder_ / "AWAY.MES");
    program.engine().writer.Save();
    EXPECT_EQ(program.set().Modified, kFalse);
    fs::rename(folder_ / "AWAY.MES", path_);
  }
  OpenAgain({MessageAnswer::kYes});
  EXPECT_EQ(Destination(0), "one ");
}

TEST_F(UnsavedEditsTest, OfAnotherStateOfTheFileAreNeverTakenOver) {
  {
    Killed program(*this);
    program.Edit();
    program.Type(0, "one");
  }
  folder_.Write("FILE.MES", std::string(content_).replace(70, 1, "x"));
  OpenAgain({});
  ASSERT_THAT(dialogs_.messages, SizeIs(1));
  EXPECT_EQ(dialogs_.messages[0].icon, MessageIcon::kExclamation);
  EXPECT_THAT(dialogs_.messages[0].text, HasSubstr(".old"));
  EXPECT_EQ(set_.phase, Phase::kFileOpen);
  EXPECT_EQ(JournalCount(), 1U) << "put aside, not removed";
  OpenAgain({});
  EXPECT_THAT(dialogs_.messages, SizeIs(1)) << "told of once";
}

TEST_F(UnsavedEditsTest, OfAnotherFileAreLeftAlone) {
  {
    Killed program(*this);
    program.Edit();
    program.Type(0, "one");
  }
  Open("OTHER.MES", content_);
  engine_.unsaved_edits.Offer();
  EXPECT_THAT(dialogs_.messages, IsEmpty());
  EXPECT_EQ(JournalCount(), 1U);
}

TEST_F(UnsavedEditsTest, OfARunningProgramAreLeftToIt) {
  Killed program(*this);
  program.Edit();
  program.Type(0, "one");
  program.engine().unsaved_edits.Keep();
  OpenAgain({});
  EXPECT_THAT(dialogs_.messages, IsEmpty());
}

TEST_F(UnsavedEditsTest, ThatSpeakOfWhatIsNotThereAreNeverTakenOver) {
  const JournalSubject subject = {path_, static_cast<std::uint32_t>(content_.size()),
                                  Checksum(content_), 0, 1};
  fs::create_directories(Journals());
  folder_.Write("data/journals/1.journal", "Vendlingua journal 1\n garbage");
  folder_.Write("data/journals/2.journal", "");
  folder_.Write("data/journals/3.journal",
                ComposeJournalHead(subject) + ComposeJournalEntry({9, {}, 9, 7}));
  OpenAgain({});
  EXPECT_EQ(set_.phase, Phase::kFileOpen);
  EXPECT_EQ(JournalCount(), 3U);
}

TEST_F(UnsavedEditsTest, HoldTheTextsOfANewLanguage) {
  {
    Killed program(*this);
    program.Edit(0);
    program.Type(1, "new");
  }
  OpenAgain({MessageAnswer::kYes});
  EXPECT_EQ(set_.phase, Phase::kDestinationUnnamed);
  EXPECT_EQ(Destination(0), "1000");
  EXPECT_EQ(Destination(1), "new ");
}

TEST_F(UnsavedEditsTest, HoldAddedMessagesAndTheDisplayType) {
  {
    Killed program(*this);
    program.Edit();
    program.set().AppendMessage();
    program.Type(3, "more");
    program.engine().editing.ChooseDisplayType(1);
  }
  OpenAgain({MessageAnswer::kYes});
  EXPECT_EQ(set_.LastMsg, 3);
  EXPECT_EQ(Destination(3), "more");
  EXPECT_EQ(set_.DisplayType, 1U);
}

TEST_F(UnsavedEditsTest, BeginAnewWhenAnotherLanguageIsEdited) {
  {
    Killed program(*this);
    program.Edit(1);
    program.Type(0, "one");
    program.engine().unsaved_edits.Keep();
    program.engine().writer.Save();
    program.engine().languages.ChooseDestination(2);
    program.Type(0, "two");
  }
  EXPECT_EQ(JournalCount(), 1U);
  OpenAgain({MessageAnswer::kYes});
  EXPECT_EQ(set_.DestLang, 2);
  EXPECT_EQ(Destination(0), "two ");
}

TEST_F(UnsavedEditsTest, CannotBeKeptInAFolderThatCannotBeMade) {
  folder_.Write("data", "a file");
  Killed program(*this);
  program.Edit();
  program.Type(0, "one");
  EXPECT_THROW(program.engine().unsaved_edits.Keep(), FileError);
  program.set().Modified = kFalse;
}

TEST_F(UnsavedEditsTest, AreNotKeptWithoutAFolder) {
  engine_.workspace.folders.journals.clear();
  Open(path_);
  engine_.languages.ChooseOrigin(0);
  engine_.languages.ChooseDestination(1);
  set_.SetText(0, Codes("one"));
  EXPECT_FALSE(engine_.unsaved_edits.IsBehind());
  engine_.unsaved_edits.Keep();
  EXPECT_EQ(folder_.Names(), "FILE.MES");
}

}  // namespace
}  // namespace vendlingua
