#include "core/operations/outside_changes.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <string>

#include "core/texts/english_texts.h"
#include "support/engine_test.h"

// Another program changes the open file.

namespace vendlingua {
namespace {

namespace fs = std::filesystem;
using test::Codes;
using test::MesFile;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

class OutsideChangesTest : public test::EngineTest {
 protected:
  OutsideChangesTest() {
    engine_.workspace.ui_text = EnglishTexts();
    Open("FILE.MES", base_);
    engine_.languages.ChooseOrigin(2);
    engine_.languages.ChooseDestination(1);
  }

  void Type(std::string_view text) {
    engine_.editing.ChangeText(Codes(text));
    engine_.editing.KeyPressed();
  }

  // The file with another text: 20 bytes of name and 4 messages of 4 cells are a block.
  std::string With(std::size_t language, std::size_t message, std::string_view text) const {
    return std::string(base_).replace(24 + language * 36 + 20 + message * 4, 4, text);
  }

  OutsideChange Notice(const std::string& content) {
    folder_.Write("FILE.MES", content);
    return NoticeOutsideChange(engine_.workspace);
  }

  const std::string& Status() const { return window_.status; }

  const std::string base_ = MesFile{.names = {"Default", "ITALIANO", "ENGLISH"}}.Bytes();
  const fs::path path_ = folder_ / "FILE.MES";
};

TEST_F(OutsideChangesTest, AreNoneInTheFileThatWasRead) {
  EXPECT_EQ(Notice(base_), OutsideChange::kNone);
  Type("mine");
  engine_.writer.Save();
  window_.status = "as it was";
  EXPECT_EQ(NoticeOutsideChange(engine_.workspace), OutsideChange::kNone);
  EXPECT_EQ(Status(), "as it was");
}

TEST_F(OutsideChangesTest, AreNoneWhereNoFileIsOpen) {
  Engine engine(dialogs_);
  EXPECT_EQ(NoticeOutsideChange(engine.workspace), OutsideChange::kNone);
}

TEST_F(OutsideChangesTest, AreTakenOverBesideTheEdits) {
  Type("mi  ");
  EXPECT_EQ(Notice(With(1, 1, "they")), OutsideChange::kTakenOver);
  EXPECT_EQ(Destination(0), "mi  ");
  EXPECT_EQ(Destination(1), "they");
  EXPECT_TRUE(window_.typed) << "what was typed stays with its blanks";
  EXPECT_EQ(set_.Modified, kTrue);
  EXPECT_THAT(Status(), StartsWith("Another program saved"));
}

TEST_F(OutsideChangesTest, ShowInTheMessageThatIsShown) {
  engine_.editing.ChangeText(Codes("1000"));
  EXPECT_EQ(Notice(With(1, 0, "they")), OutsideChange::kTakenOver);
  EXPECT_EQ(test::Text(view().Text1.text), "they");
}

TEST_F(OutsideChangesTest, ShowInTheOrigin) {
  EXPECT_EQ(Notice(With(2, 1, "they")), OutsideChange::kTakenOver);
  EXPECT_EQ(Origin(1), "they");
  EXPECT_EQ(Destination(1), "1111");
}

TEST_F(OutsideChangesTest, BringNewLanguages) {
  EXPECT_EQ(Notice(base_ + "POLSKI              " + std::string(16, 'x')),
            OutsideChange::kTakenOver);
  EXPECT_EQ(menus().mnuDes[3].caption, "POLSKI");
}

TEST_F(OutsideChangesTest, StayUndecidedWhereBothChangedTheSame) {
  Type("mine");
  EXPECT_EQ(Notice(With(1, 0, "they")), OutsideChange::kUndecided);
  EXPECT_EQ(Destination(0), "mine");
  EXPECT_EQ(set_.file_content, base_);
  EXPECT_THAT(Status(), HasSubstr("the next save asks"));
  EXPECT_THAT(dialogs_.conflict_requests, IsEmpty());
}

TEST_F(OutsideChangesTest, OfAFileThatIsAnotherOneAreToldAlone) {
  Type("mine");
  EXPECT_EQ(Notice(MesFile{.width = 8}.Bytes()), OutsideChange::kUnusable);
  EXPECT_EQ(set_.file_content, base_);
  EXPECT_EQ(Destination(0), "mine");
  EXPECT_THAT(Status(), HasSubstr("FILE.MES: is not the file any more that was opened"));
}

TEST_F(OutsideChangesTest, OfAFileThatIsGoneAreToldAlone) {
  Type("mine");
  fs::remove(path_);
  EXPECT_EQ(NoticeOutsideChange(engine_.workspace), OutsideChange::kUnusable);
  EXPECT_EQ(Destination(0), "mine");
  EXPECT_THAT(Status(), HasSubstr("FILE.MES: cannot be opened"));
}

}  // namespace
}  // namespace vendlingua
