#include "app/exit.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <vector>

#include "app/engine.h"
#include "support/message_files.h"
#include "support/scripted_dialogs.h"
#include "support/temporary_folder.h"

namespace vendlingua {
namespace {

using testing::ElementsAre;

class NotedStarts : public ProgramStarter {
 public:
  std::vector<std::filesystem::path> programs;

  void Start(const std::filesystem::path& program) override { programs.push_back(program); }
};

class ExitTest : public testing::Test {
 protected:
  bool End() { return Form_Unload(engine_.workspace, starts_, engine_.writer); }

  // A destination language that has been changed.
  std::filesystem::path Edit() {
    const auto path = folder_.Write("A.MES", test::MesFile().Bytes());
    dialogs_.file_answers = {path};
    engine_.opener.Open();
    engine_.languages.ChooseOrigin(1);
    engine_.languages.ChooseDestination(1);
    engine_.view.KeyPressed();
    return path;
  }

  test::TemporaryFolder folder_;
  test::ScriptedDialogs dialogs_;
  Engine engine_{dialogs_};
  NotedStarts starts_;
};

TEST_F(ExitTest, StartsTheSiblingInTheParentFolder) {
  engine_.workspace.folders.current = folder_ / "bin";
  EXPECT_TRUE(End());
  EXPECT_THAT(starts_.programs, ElementsAre(folder_ / "MACHCONFIG.EXE"));
  EXPECT_EQ(engine_.workspace.folders.current, folder_.path());
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
