#include "core/flash/kept_files.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/platform/errors.h"
#include "support/skip_on_windows.h"
#include "support/temporary_folder.h"

namespace vendlingua {
namespace {

class KeptFilesTest : public testing::Test {
 protected:
  std::string Refusal(const char* output) {
    try {
      RefuseToReplace(kept_, folder_ / output);
    } catch (const FileError& error) {
      return error.reason();
    }
    return "";
  }

  test::TemporaryFolder folder_;
  std::vector<KeptFile> kept_ = {{FilePlace(folder_ / "READ.MES"), UiTextId::kIsMessageFile},
                                 {FilePlace(folder_ / "NEW.MHX"), UiTextId::kIsFlashFile}};
};

TEST_F(KeptFilesTest, LetNothingTakeTheirPlace) {
  SKIP_ON_WINDOWS("links for everybody");
  EXPECT_EQ(Refusal("./READ.MES"),
            "is the message file that is being compiled; choose another name");
  std::filesystem::create_symlink("NEW.MHX", folder_ / "LINK");
  EXPECT_EQ(Refusal("LINK"), "is the flash file; choose another name");
}

TEST_F(KeptFilesTest, MindNoOtherFile) {
  EXPECT_EQ(Refusal("OTHER"), "");
  kept_.clear();
  EXPECT_EQ(Refusal("READ.MES"), "");
}

}  // namespace
}  // namespace vendlingua
