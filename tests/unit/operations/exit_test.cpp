#include "core/operations/exit.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <functional>
#include <vector>

#include "support/engine_test.h"

namespace vendlingua {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class NotedStarts : public ProgramStarter {
 public:
  std::vector<std::filesystem::path> programs;
  std::function<void()> on_start = [] {};

  void Start(const std::filesystem::path& program) override {
    on_start();
    programs.push_back(program);
  }
};

class ExitTest : public test::EngineTest {
 protected:
  ExitTest() {
    engine_.workspace.folders.program = folder_ / "bin";
    engine_.workspace.folders.current = folder_ / "bin";
  }

  bool End() { return Form_Unload(engine_.workspace, starts_, engine_.writer); }

  // A destination language that has been changed.
  std::filesystem::path Edit() {
    auto path = folder_.Write("A.MES", test::MesFile().Bytes());
    Open(path);
    engine_.languages.ChooseOrigin(1);
    engine_.languages.ChooseDestination(1);
    engine_.editing.KeyPressed();
    return path;
  }

  NotedStarts starts_;
};

TEST_F(ExitTest, StartsTheSiblingInTheParentOfItsOwnFolder) {
  EXPECT_TRUE(End());
  EXPECT_THAT(starts_.programs, ElementsAre(folder_ / "MACHCONFIG.EXE"));
  EXPECT_EQ(engine_.workspace.folders.current, folder_.path());
}

// Who hands a memory stick over must not choose the program that is started.
TEST_F(ExitTest, StartsNoSiblingThatLiesBesideForeignFiles) {
  std::filesystem::create_directories(folder_ / "stick/messages");
  Open("stick/messages/A.MES", test::MesFile().Bytes());
  EXPECT_EQ(engine_.workspace.folders.current, folder_ / "stick/messages");
  EXPECT_TRUE(End());
  EXPECT_THAT(starts_.programs, ElementsAre(folder_ / "MACHCONFIG.EXE"));
}

TEST_F(ExitTest, StartsNothingWhereItsOwnFolderIsUnknown) {
  engine_.workspace.folders.program.clear();
  EXPECT_TRUE(End());
  EXPECT_THAT(starts_.programs, IsEmpty());
}

TEST_F(ExitTest, StartsTheSiblingBeforeItAsksAboutChanges) {
  Edit();
  dialogs_.yes_no_answers = {MessageAnswer::kNo};
  starts_.on_start = [this] { EXPECT_THAT(dialogs_.messages, IsEmpty()); };
  End();
  EXPECT_THAT(starts_.programs, SizeIs(1));
  EXPECT_THAT(dialogs_.messages, SizeIs(1));
}

TEST_F(ExitTest, EndsWhenTheChangesAreDropped) {
  Edit();
  dialogs_.yes_no_answers = {MessageAnswer::kNo};
  EXPECT_TRUE(End());
}

TEST_F(ExitTest, DoesNotEndWhenTheChangesCannotBeSaved) {
  std::filesystem::remove(Edit());
  dialogs_.yes_no_answers = {MessageAnswer::kYes};
  EXPECT_FALSE(End());
  EXPECT_EQ(engine_.workspace.folders.current, folder_.path());
}

}  // namespace
}  // namespace vendlingua
