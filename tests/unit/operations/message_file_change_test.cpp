#include "core/operations/message_file_change.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <functional>
#include <string>

#include "core/operations/rename_language.h"
#include "core/platform/change_record.h"
#include "core/platform/errors.h"
#include "support/engine_test.h"

// Saving into a file that other programs change, too.

namespace vendlingua {
namespace {

namespace fs = std::filesystem;
using test::Codes;
using test::MesFile;
using test::Slurp;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

class SharedFileTest : public test::EngineTest {
 protected:
  SharedFileTest() {
    Open("FILE.MES", base_);
    engine_.languages.ChooseOrigin(0);
    engine_.languages.ChooseDestination(1);
  }

  static std::size_t At(std::size_t language, std::size_t message) {
    return 24 + language * 36 + 20 + message * 4;
  }

  static std::string With(std::string content, std::size_t at, std::string_view bytes) {
    return content.replace(at, bytes.size(), bytes);
  }

  void Type(std::string_view text) {
    engine_.editing.ChangeText(Codes(text));
    engine_.editing.KeyPressed();
  }

  void ExpectSaved(const std::string& content) {
    const SaveOutcome outcome = engine_.writer.Save();
    EXPECT_EQ(outcome.result, SaveOutcome::kSaved) << outcome.reason;
    EXPECT_EQ(Slurp(path_), content);
    EXPECT_EQ(set_.file_content, content);
    EXPECT_EQ(folder_.Names(), "FILE.MES");
  }

  void ExpectNotSaved(const std::string& content, std::string_view reason) {
    const SaveOutcome outcome = engine_.writer.Save();
    EXPECT_EQ(outcome.result, SaveOutcome::kFailed);
    EXPECT_THAT(outcome.reason, HasSubstr(reason));
    EXPECT_EQ(Slurp(path_), content);
    EXPECT_EQ(folder_.Names(), "FILE.MES");
  }

  std::string SavedAs(const char* name) {
    dialogs_.file_answers = {folder_ / name};
    EXPECT_EQ(engine_.writer.SaveAs().result, SaveOutcome::kSaved);
    return Slurp(folder_ / name);
  }

  const std::string base_ = MesFile{.names = {"Default", "ITALIANO", "ENGLISH"}}.Bytes();
  const fs::path path_ = folder_ / "FILE.MES";
};

TEST_F(SharedFileTest, HoldsTheChangesOfBothAfterASave) {
  Type("mine");
  const std::string theirs = With(With(base_, At(1, 1), "they"), At(2, 2), "more");
  folder_.Write("FILE.MES", theirs);
  ExpectSaved(With(theirs, At(1, 0), "mine"));
  EXPECT_EQ(Destination(1), "they");
}

TEST_F(SharedFileTest, IsSavedAgainWithoutAnotherWord) {
  Type("mine");
  folder_.Write("FILE.MES", With(base_, At(1, 1), "they"));
  engine_.writer.Save();
  Type("min2");
  ExpectSaved(With(With(base_, At(1, 1), "they"), At(1, 0), "min2"));
  EXPECT_THAT(dialogs_.messages, IsEmpty());
}

TEST_F(SharedFileTest, AsksWhichOfTwoChangesCounts) {
  Type("mine");
  folder_.Write("FILE.MES", With(base_, At(1, 0), "they"));
  dialogs_.conflict_answers = {{ConflictAnswer::kKeepMine}};
  ExpectSaved(With(base_, At(1, 0), "mine"));
  ASSERT_THAT(dialogs_.conflict_requests, SizeIs(1));
  const ConflictRequest& request = dialogs_.conflict_requests[0];
  ASSERT_THAT(request.conflicts, SizeIs(1));
  EXPECT_EQ(request.conflicts[0], (EditConflict{1, "ITALIANO", 0, Codes("mine"), Codes("they")}));
  EXPECT_THAT(request.questions, SizeIs(1));
}

TEST_F(SharedFileTest, ShowsTheirTextWhenItIsTaken) {
  Type("mine");
  folder_.Write("FILE.MES", With(base_, At(1, 0), "they"));
  dialogs_.conflict_answers = {{ConflictAnswer::kTakeTheirs}};
  ExpectSaved(With(base_, At(1, 0), "they"));
  EXPECT_EQ(Destination(0), "they");
  EXPECT_EQ(test::Text(view().Text1.text), "they");
}

// While the question stands the file may be changed once more.
TEST_F(SharedFileTest, AsksAgainAboutAChangeThatWasMadeMeanwhile) {
  class Meddler : public test::ScriptedDialogs {
   public:
    std::vector<ConflictAnswer> ResolveConflicts(const ConflictRequest& request) override {
      if (asked++ == 0) {
        meddle();
      }
      std::vector<ConflictAnswer> answers(request.conflicts.size(), ConflictAnswer::kKeepMine);
      return answers;
    }
    std::function<void()> meddle;
    int asked = 0;
  };
  Meddler dialogs;
  dialogs.meddle = [this] {
    folder_.Write("FILE.MES", With(With(base_, At(1, 0), "new0"), At(2, 0), "new2"));
  };
  Type("mine");
  folder_.Write("FILE.MES", With(base_, At(1, 0), "they"));
  ChangeMessageFile(engine_.workspace, dialogs, [](const std::string& /*content*/) {
    return std::vector<FilePatch>{{80, "mine"}};
  });
  EXPECT_EQ(dialogs.asked, 2);
  EXPECT_EQ(Slurp(path_), With(With(base_, At(1, 0), "mine"), At(2, 0), "new2"));
}

TEST_F(SharedFileTest, IsNotWrittenWhileAConflictIsUndecided) {
  Type("mine");
  const std::string theirs = With(With(base_, At(1, 0), "they"), At(2, 0), "more");
  folder_.Write("FILE.MES", theirs);
  ExpectNotSaved(theirs, "in the same places: 0");
  EXPECT_EQ(Destination(0), "mine");
  EXPECT_EQ(SavedAs("COPY.MES"), With(base_, At(1, 0), "mine")) << "what was read and the edits";
}

TEST_F(SharedFileTest, IsNotWrittenWhenItIsAnotherFileByNow) {
  Type("mine");
  const std::vector<std::string> others = {
      base_.substr(0, 24),         base_.substr(0, 100),   "",
      MesFile{.width = 8}.Bytes(), std::string(5000, ' '), test::MsxFile(1)};
  for (const std::string& other : others) {
    folder_.Write("FILE.MES", other);
    ExpectNotSaved(other, "FILE.MES: ");
    EXPECT_EQ(set_.file_content, base_);
  }
  EXPECT_EQ(SavedAs("COPY.MES"), With(base_, At(1, 0), "mine"));
}

TEST_F(SharedFileTest, IsCopiedWithTheChangesOfOthers) {
  Type("mine");
  folder_.Write("FILE.MES", With(base_, At(2, 0), "they"));
  EXPECT_EQ(SavedAs("COPY.MES"), With(With(base_, At(2, 0), "they"), At(1, 0), "mine"));
  EXPECT_EQ(Slurp(path_), With(base_, At(2, 0), "they"));
}

TEST_F(SharedFileTest, GivesANewLanguageTheNextFreeBlock) {
  dialogs_.yes_no_answers = {MessageAnswer::kNo};
  engine_.languages.StartNewLanguage(1);
  const std::string theirs = base_ + "POLSKI              " + std::string(16, 'x');
  folder_.Write("FILE.MES", theirs);
  dialogs_.input_answers = {"deutsch"};
  ExpectSaved(theirs + "DEUTSCH             100011111222");
  EXPECT_EQ(set_.DestLang, 4);
  EXPECT_EQ(set_.language_names[3], "POLSKI");
}

TEST_F(SharedFileTest, TakesNoSecondLanguageOfOneName) {
  engine_.languages.StartNewLanguage(1);
  const std::string theirs = base_ + "DEUTSCH             " + std::string(16, 'x');
  folder_.Write("FILE.MES", theirs);
  dialogs_.input_answers = {"deutsch"};
  ExpectNotSaved(theirs, "DEUTSCH");
  dialogs_.input_answers = {"tedesco"};
  ExpectSaved(theirs + "TEDESCO             100011111222");
}

TEST_F(SharedFileTest, KeepsAMessageThatSomebodyAdded) {
  Type("mine");
  const std::string theirs = With(With(base_, 8, "0003"), At(2, 3), "new3");
  folder_.Write("FILE.MES", theirs);
  ExpectSaved(With(theirs, At(1, 0), "mine"));
  EXPECT_EQ(set_.LastMsg, 3);
}

TEST_F(SharedFileTest, ShowsWhatIsInTheFileWhenALanguageIsChosen) {
  folder_.Write("FILE.MES", With(base_, At(2, 0), "they") + "POLSKI              ");
  engine_.languages.ChooseDestination(2);
  EXPECT_EQ(Destination(0), "they");
  EXPECT_EQ(set_.language_names.size(), 4U);
  folder_.Write("FILE.MES", With(base_, At(2, 0), "late") + "POLSKI              ");
  engine_.languages.ChooseOrigin(2);
  EXPECT_EQ(Origin(0), "late");
  EXPECT_EQ(Destination(0), "late") << "nobody edited it here";
}

TEST_F(SharedFileTest, OpensNoLanguageOfAnotherFile) {
  folder_.Write("FILE.MES", MesFile{.width = 8}.Bytes());
  EXPECT_THROW(engine_.languages.ChooseOrigin(1), FileChangedError);
  EXPECT_THROW(engine_.languages.ChooseDestination(1), FileChangedError);
  EXPECT_EQ(Destination(0), "1000");
}

TEST_F(SharedFileTest, IsRenamedWithTheChangesOfBoth) {
  const std::string theirs = With(With(base_, At(2, 0), "they"), 24 + 36, "ITALIAN ");
  folder_.Write("FILE.MES", theirs);
  dialogs_.input_answers = {"british"};
  dialogs_.yes_no_answers = {MessageAnswer::kYes};
  RenameLanguage(engine_.workspace, dialogs_, 2);
  EXPECT_EQ(Slurp(path_), With(theirs, 24 + 2 * 36, "BRITISH "));
  EXPECT_EQ(set_.language_names[1], "ITALIAN");
}

TEST_F(SharedFileTest, IsNotRenamedWhenItIsAnotherFileByNow) {
  for (const std::string& other : {std::string(), base_.substr(0, 60), MesFile().Bytes()}) {
    folder_.Write("FILE.MES", other);
    dialogs_.input_answers = {"british"};
    dialogs_.yes_no_answers = {MessageAnswer::kYes};
    RenameLanguage(engine_.workspace, dialogs_, 2);
    EXPECT_EQ(Slurp(path_), other);
    EXPECT_EQ(dialogs_.messages.back().title, "ERROR");
    EXPECT_THAT(dialogs_.messages.back().text, HasSubstr("FILE.MES: "));
  }
}

TEST_F(SharedFileTest, IsNotSavedOverASaveThatWasInterrupted) {
  Type("mine");
  const std::string half = With(base_, At(1, 1), "thxx");
  folder_.Write("FILE.MES", half);
  folder_.Write("~FILE.MES.undo", ComposeRecord(RecordOf(base_, With(base_, At(1, 1), "they"))));
  folder_.Write("FILE.MES", With(base_, At(1, 1), "th11"));
  const SaveOutcome outcome = engine_.writer.Save();
  EXPECT_EQ(outcome.result, SaveOutcome::kFailed);
  EXPECT_THAT(outcome.reason, HasSubstr("interrupted"));
  EXPECT_EQ(Slurp(path_), With(base_, At(1, 1), "th11"));
}

}  // namespace
}  // namespace vendlingua
