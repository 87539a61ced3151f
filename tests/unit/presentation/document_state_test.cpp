#include "core/presentation/document_state.h"

#include <gtest/gtest.h>

#include "support/engine_test.h"
#include "support/message_files.h"

namespace vendlingua::test {
namespace {

class DocumentStateTest : public EngineTest {
 protected:
  void OpenFile() {
    MesFile mes;
    mes.names = {"Default", "ITALIANO", "ENGLISH"};
    Open("TEST.MES", mes.Bytes());
  }

  DocumentState State() const { return DocumentStateOf(engine_.workspace); }
};

TEST_F(DocumentStateTest, IsEmptyWithoutAnOrigin) {
  EXPECT_EQ(State().languages, "");
  EXPECT_EQ(State().place, "");
  OpenFile();
  EXPECT_EQ(State().place, "");
}

TEST_F(DocumentStateTest, NamesTheOriginAndTheMessage) {
  OpenFile();
  engine_.languages.ChooseOrigin(1);
  engine_.editing.GoTo(1);
  EXPECT_EQ(State().languages, "ITALIANO");
  EXPECT_EQ(State().place, "1/2");
}

TEST_F(DocumentStateTest, CountsTheCellsOfTheDestination) {
  OpenFile();
  engine_.languages.ChooseOrigin(1);
  engine_.languages.ChooseDestination(2);
  EXPECT_EQ(State().languages, "ITALIANO \u2192 ENGLISH");
  EXPECT_EQ(State().place, "0/2  4/4");
  engine_.editing.ChangeText(Codes("AB"));
  EXPECT_EQ(State().place, "0/2  2/4  \u25CF");
}

TEST_F(DocumentStateTest, CallsALanguageNewThatHasNoNameYet) {
  OpenFile();
  engine_.languages.ChooseOrigin(1);
  engine_.languages.StartNewLanguage(0);
  EXPECT_EQ(State().languages,
            "ITALIANO \u2192 " + engine_.workspace.ui_text[UiTextId::kNewLanguageEntry]);
}

TEST_F(DocumentStateTest, ASaveThatFailedIsUnsaved) {
  OpenFile();
  engine_.languages.ChooseOrigin(1);
  set_.save_failed = true;
  EXPECT_EQ(State().place, "0/2  \u25CF");
}

TEST_F(DocumentStateTest, TellsWhatToDoNext) {
  EXPECT_EQ(NextStepOf(set_), UiTextId::kHintOpen);
  OpenFile();
  EXPECT_EQ(NextStepOf(set_), UiTextId::kHintOrigin);
  engine_.languages.ChooseOrigin(1);
  EXPECT_EQ(NextStepOf(set_), UiTextId::kHintDestination);
  engine_.languages.ChooseDestination(2);
  EXPECT_EQ(NextStepOf(set_), std::nullopt);
}

}  // namespace
}  // namespace vendlingua::test
