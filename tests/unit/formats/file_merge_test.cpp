#include "core/formats/file_merge.h"

#include <gmock/gmock.h>

#include <string>

#include "core/formats/message_file.h"
#include "core/platform/errors.h"
#include "support/engine_test.h"

namespace vendlingua {
namespace {

using test::Codes;
using test::MesFile;
using test::MsxFile;
using test::MsxMessage;
using test::S2Line;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

// Language 1 of three is edited here, while another program saves into the file.
class MesMergeTest : public test::EngineTest {
 protected:
  MesMergeTest() {
    Open("FILE.MES", file_.Bytes());
    engine_.languages.ChooseOrigin(0);
    engine_.languages.ChooseDestination(1);
  }

  void Edit(std::size_t message, std::string_view text) { set_.SetText(message, Codes(text)); }

  // The file with another text.
  std::string With(std::string content, std::size_t language, std::size_t message,
                   std::string_view text) const {
    const std::size_t at = 24 + language * file_.BlockLength() + 20 + message * 4;
    return content.replace(at, text.size(), text);
  }

  std::string Named(std::string content, std::size_t language, std::string_view name) const {
    return content.replace(24 + language * file_.BlockLength(), name.size(), name);
  }

  std::vector<EditConflict> TakeOver(const std::string& content) {
    return TakeOverChanges(set_, content, decided_);
  }

  void ExpectRefused(const std::string& content) {
    EXPECT_THROW(TakeOver(content), FileChangedError);
    EXPECT_EQ(set_.file_content, base_);
  }

  MesFile file_{.names = {"Default", "ITALIANO", "ENGLISH"}};
  const std::string base_ = file_.Bytes();
  std::vector<DecidedConflict> decided_;
};

TEST_F(MesMergeTest, TakesWhatOnlyTheyChanged) {
  EXPECT_THAT(TakeOver(With(base_, 1, 1, "they")), IsEmpty());
  EXPECT_EQ(Destination(1), "they");
  EXPECT_EQ(Destination(0), "1000");
  EXPECT_EQ(set_.file_content, With(base_, 1, 1, "they"));
}

TEST_F(MesMergeTest, KeepsWhatOnlyWeChanged) {
  Edit(0, "mine");
  EXPECT_THAT(TakeOver(With(base_, 1, 1, "they")), IsEmpty());
  EXPECT_EQ(Destination(0), "mine");
  EXPECT_EQ(Destination(1), "they");
  EXPECT_EQ(set_.Modified, kTrue);
}

TEST_F(MesMergeTest, KnowsThatTheirTextsAreSaved) {
  Edit(0, "mine");
  TakeOver(With(base_, 1, 1, "they"));
  set_.Undo();
  EXPECT_EQ(Destination(0), "1000");
  EXPECT_EQ(Destination(1), "they");
  EXPECT_EQ(set_.Modified, kFalse);
}

TEST_F(MesMergeTest, FindsNoConflictWhereBothWroteTheSame) {
  Edit(1, "same");
  EXPECT_THAT(TakeOver(With(base_, 1, 1, "same")), IsEmpty());
  EXPECT_EQ(Destination(1), "same");
}

TEST_F(MesMergeTest, LeavesEverythingAsItWasWhileAConflictIsUndecided) {
  Edit(1, "mine");
  const std::vector<EditConflict> conflicts =
      TakeOver(With(With(base_, 1, 1, "they"), 1, 2, "more"));
  EXPECT_THAT(conflicts, ElementsAre(EditConflict{1, "ITALIANO", 1, Codes("mine"), Codes("they")}));
  EXPECT_EQ(Destination(1), "mine");
  EXPECT_EQ(Destination(2), "1222");
  EXPECT_EQ(set_.file_content, base_);
}

TEST_F(MesMergeTest, FollowsTheDecisionAboutAConflict) {
  Edit(1, "mine");
  Edit(2, "our2");
  const std::string content = With(With(base_, 1, 1, "they"), 1, 2, "the2");
  const std::vector<EditConflict> conflicts = TakeOver(content);
  ASSERT_THAT(conflicts, SizeIs(2));
  decided_ = {{conflicts[0], ConflictAnswer::kTakeTheirs},
              {conflicts[1], ConflictAnswer::kKeepMine}};
  EXPECT_THAT(TakeOver(content), IsEmpty());
  EXPECT_EQ(Destination(1), "they");
  EXPECT_EQ(Destination(2), "our2");
}

// What was decided was decided about the texts that were seen.
TEST_F(MesMergeTest, AsksAgainWhenTheyChangeTheMessageOnceMore) {
  Edit(1, "mine");
  decided_ = {{TakeOver(With(base_, 1, 1, "they")).at(0), ConflictAnswer::kKeepMine}};
  EXPECT_THAT(TakeOver(With(base_, 1, 1, "then")), SizeIs(1));
}

TEST_F(MesMergeTest, TakesTheirOtherLanguagesAndNames) {
  Edit(0, "mine");
  const std::string more = base_ + "POLSKI              " + std::string(12, 'x');
  TakeOver(Named(With(more, 2, 0, "they"), 2, "BRITISH "));
  EXPECT_THAT(set_.language_names, ElementsAre("Default", "ITALIANO", "BRITISH", "POLSKI"));
}

TEST_F(MesMergeTest, KeepsANameThatOnlyWeChanged) {
  set_.language_names[2] = "BRITISH";
  TakeOver(With(base_, 2, 0, "they"));
  EXPECT_EQ(set_.language_names[2], "BRITISH");
}

TEST_F(MesMergeTest, AsksAboutANameThatBothChanged) {
  set_.language_names[2] = "BRITISH";
  const std::string content = Named(base_, 2, "INGLESE ");
  const std::vector<EditConflict> conflicts = TakeOver(content);
  EXPECT_THAT(conflicts, ElementsAre(EditConflict{2, "BRITISH", std::nullopt, Codes("BRITISH"),
                                                  Codes("INGLESE")}));
  decided_ = {{conflicts[0], ConflictAnswer::kTakeTheirs}};
  TakeOver(content);
  EXPECT_EQ(set_.language_names[2], "INGLESE");
}

TEST_F(MesMergeTest, LetsTheHigherLastMsgWin) {
  Edit(0, "mine");
  std::string content = With(base_, 1, 3, "new3");
  content.replace(8, 4, "0003");
  EXPECT_THAT(TakeOver(content), IsEmpty());
  EXPECT_EQ(set_.LastMsg, 3);
  EXPECT_EQ(Destination(3), "new3");
  EXPECT_EQ(Destination(0), "mine");
  EXPECT_FALSE(set_.history.CanStepBack()) << "a step back would lower LastMsg again";
}

TEST_F(MesMergeTest, KeepsAMessageThatWeAdded) {
  set_.AppendMessage();
  Edit(3, "our3");
  EXPECT_THAT(TakeOver(With(base_, 2, 0, "they")), IsEmpty());
  EXPECT_EQ(set_.LastMsg, 3);
  EXPECT_EQ(Destination(3), "our3");
}

TEST_F(MesMergeTest, AsksAboutAMessageThatBothAdded) {
  set_.AppendMessage();
  Edit(3, "our3");
  std::string content = With(base_, 1, 3, "new3");
  EXPECT_THAT(TakeOver(content.replace(8, 4, "0003")),
              ElementsAre(EditConflict{1, "ITALIANO", 3, Codes("our3"), Codes("new3")}));
}

TEST_F(MesMergeTest, TakesTheirDisplayTypeUnlessOursWasChosen) {
  std::string content = base_;
  content.replace(2, 2, "04");
  TakeOver(content);
  EXPECT_EQ(set_.DisplayType, 1U);
  EXPECT_EQ(set_.Modified, kFalse);
  engine_.editing.ChooseDisplayType(2);
  TakeOver(content.replace(2, 2, "00"));
  EXPECT_EQ(set_.DisplayType, 2U);
}

TEST_F(MesMergeTest, TakesAllForANewLanguageThatIsNotInTheFileYet) {
  dialogs_.yes_no_answers = {MessageAnswer::kNo};
  engine_.languages.StartNewLanguage(0);
  Edit(0, "mine");
  EXPECT_THAT(TakeOver(With(base_ + "POLSKI              ", 1, 0, "they")), IsEmpty());
  EXPECT_EQ(Destination(0), "mine");
  EXPECT_THAT(set_.language_names, SizeIs(4));
}

TEST_F(MesMergeTest, RefusesAFileOfOtherDimensions) {
  for (const auto& [at, bytes] :
       {std::pair(0, "\x03"), std::pair(1, "\x02"), std::pair(2, "01"), std::pair(2, "02"),
        std::pair(4, "0002"), std::pair(12, "00006001"), std::pair(20, "0019")}) {
    std::string content = base_;
    ExpectRefused(content.replace(static_cast<std::size_t>(at), std::string(bytes).size(), bytes));
  }
}

TEST_F(MesMergeTest, RefusesAFileThatBecameShorter) {
  for (const std::size_t size : {std::size_t{0}, std::size_t{1}, std::size_t{23}, std::size_t{24},
                                 std::size_t{100}, base_.size() - 1}) {
    ExpectRefused(base_.substr(0, size));
  }
}

TEST_F(MesMergeTest, RefusesAnotherKindOfFile) {
  ExpectRefused(MsxFile(1));
  ExpectRefused("LABEL   DC.B 'ABCD'\r\n" + std::string(1000, ' '));
  ExpectRefused(std::string(1000, '\0'));
}

TEST_F(MesMergeTest, DropsTheEditsOfALanguageThatIsLeft) {
  Edit(1, "mine");
  TakeOverFile(set_, With(base_ + "POLSKI              ", 1, 1, "they"));
  EXPECT_THAT(set_.language_names, SizeIs(4));
  EXPECT_EQ(set_.file_content.size(), base_.size() + 20);
  EXPECT_THROW(TakeOverFile(set_, base_), FileChangedError) << "a language is gone";
}

// The second of two languages is edited.
class MsxMergeTest : public test::EngineTest {
 protected:
  MsxMergeTest() {
    Open("FILE.MSX", base_);
    engine_.languages.ChooseOrigin(0);
    engine_.languages.ChooseDestination(2);
  }

  std::string With(std::string content, std::size_t language, std::size_t message,
                   std::string_view text) const {
    const std::size_t address = 0xFF0000 + ((language - 1) * 455 + message) * 16;
    const std::string line = S2Line(address, MsxMessage(language, message));
    return content.replace(content.find(line), line.size(), S2Line(address, text));
  }

  const std::string base_ = MsxFile(2);
};

TEST_F(MsxMergeTest, BringsTheMessagesOfBothTogether) {
  set_.SetText(3, Codes("mine"));
  const std::string content = With(With(base_, 2, 4, "theirs          "), 1, 3, "other language  ");
  EXPECT_THAT(TakeOverChanges(set_, content, {}), IsEmpty());
  EXPECT_EQ(Destination(3), "mine            ");
  EXPECT_EQ(Destination(4), "theirs          ");
  EXPECT_EQ(set_.file_content, content);
}

TEST_F(MsxMergeTest, TakesTheirNames) {
  EXPECT_THAT(TakeOverChanges(set_, With(base_, 2, 169, "     POLSKI     "), {}), IsEmpty());
  EXPECT_THAT(set_.language_names, ElementsAre("Italiano", "LANGUAGE 1", "POLSKI"));
}

TEST_F(MsxMergeTest, ReturnsWhatBothChanged) {
  set_.SetText(3, Codes("mine"));
  EXPECT_THAT(TakeOverChanges(set_, With(base_, 2, 3, "theirs          "), {}), SizeIs(1));
}

TEST_F(MsxMergeTest, TakesALastLineThatGotItsEnd) {
  Open("OPEN.MSX", base_.substr(0, base_.size() - 2));
  EXPECT_THAT(TakeOverChanges(set_, base_, {}), IsEmpty());
}

TEST_F(MsxMergeTest, RefusesOtherLines) {
  std::string lone_lf = base_;
  lone_lf.erase(44 + 46 - 2, 1);
  std::string other_address = base_;
  other_address.replace(44 + 4, 6, "FF0010");
  std::string other_model = base_;
  other_model.replace(0, 44, MsxFile(0, "0405"));
  std::string longer = base_;
  longer.insert(44 + 10, "00");
  for (const std::string& content :
       {base_.substr(46), base_.substr(0, base_.size() - 46), base_ + S2Line(0, "x"), MsxFile(1),
        lone_lf, other_address, other_model, longer, std::string()}) {
    EXPECT_THROW(TakeOverChanges(set_, content, {}), FileChangedError);
    EXPECT_EQ(set_.file_content, base_);
  }
}

}  // namespace
}  // namespace vendlingua
