#include "core/operations/display_type.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <string>

#include "core/platform/errors.h"
#include "support/engine_test.h"

namespace vendlingua {
namespace {

class StoreDisplayTypeTest : public test::EngineTest {
 protected:
  StoreDisplayTypeTest() {
    mes_.flags = "03";
    Open("A.MES", mes_.Bytes());
  }

  test::MesFile mes_;
  const std::filesystem::path file_ = folder_ / "A.MES";
};

TEST_F(StoreDisplayTypeTest, WritesTheFlagsAndNoOtherByte) {
  StoreDisplayType(engine_.workspace, dialogs_, 1);
  std::string expected = mes_.Bytes();
  expected.replace(2, 2, "07");
  EXPECT_EQ(test::Slurp(file_), expected);
  EXPECT_EQ(set_.file_content, expected);
  EXPECT_EQ(set_.DisplayType, 1U);
  StoreDisplayType(engine_.workspace, dialogs_, 2);
  EXPECT_EQ(test::Slurp(file_).substr(2, 2), "0B");
  StoreDisplayType(engine_.workspace, dialogs_, 0);
  EXPECT_EQ(test::Slurp(file_), mes_.Bytes());
}

TEST_F(StoreDisplayTypeTest, LeavesWhatSavingWithAnOpenDestinationWould) {
  StoreDisplayType(engine_.workspace, dialogs_, 2);
  const std::string stored = test::Slurp(file_);
  Open("B.MES", mes_.Bytes());
  engine_.languages.ChooseOrigin(0);
  engine_.languages.ChooseDestination(1);
  engine_.editing.ChooseDisplayType(2);
  EXPECT_EQ(engine_.writer.Save().result, SaveOutcome::kSaved);
  EXPECT_EQ(test::Slurp(folder_ / "B.MES"), stored);
}

TEST_F(StoreDisplayTypeTest, RefusesTheHebrewOne) {
  EXPECT_THROW(StoreDisplayType(engine_.workspace, dialogs_, 3), FileError);
  EXPECT_EQ(test::Slurp(file_), mes_.Bytes());
  EXPECT_EQ(set_.DisplayType, 0U);
}

TEST_F(StoreDisplayTypeTest, RefusesAnMsxFile) {
  Open("A.MSX", test::MsxFile(1));
  EXPECT_THROW(StoreDisplayType(engine_.workspace, dialogs_, 1), FileError);
  EXPECT_EQ(test::Slurp(folder_ / "A.MSX"), test::MsxFile(1));
}

TEST_F(StoreDisplayTypeTest, RefusesAFileThatLostItsHeader) {
  folder_.Write("A.MES", "short");
  EXPECT_THROW(StoreDisplayType(engine_.workspace, dialogs_, 1), FileError);
  EXPECT_EQ(test::Slurp(file_), "short");
  std::filesystem::remove(file_);
  EXPECT_THROW(StoreDisplayType(engine_.workspace, dialogs_, 1), FileError);
}

}  // namespace
}  // namespace vendlingua
