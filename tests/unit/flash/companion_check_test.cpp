#include "core/flash/companion_check.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <string>

#include "support/message_files.h"
#include "support/temporary_folder.h"

namespace vendlingua {
namespace {

namespace fs = std::filesystem;
using test::MesFile;
using test::S2Line;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

// A flash file of 48 bytes from FF9FF0 on: 16 bytes at the end of section 1, 32 in section 2.
class CompanionCheckTest : public ::testing::Test {
 protected:
  CompanionCheckTest() {
    folder_.Write("FW0267AB.MHX", records_);
    folder_.Write("FW0267AB.mtx", "");
    folder_.Write("FW0267AB.SA1", std::string(0x1FF0, '\0') + std::string(16, 'a'));
    folder_.Write("FW0267AB.SA2", std::string(16, 'b') + std::string(16, 'c'));
    folder_.Write("FW0267AB.MSX", header_ + records_);
  }

  std::vector<std::string> Check() { return CheckCompanions(folder_ / "FW0267AB.MHX"); }

  test::TemporaryFolder folder_;
  const std::string records_ = S2Line(0xFF9FF0, std::string(16, 'a')) + "\r\n" +
                               S2Line(0xFFA000, std::string(16, 'b')) + "\r\n" +
                               S2Line(0xFFA010, std::string(16, 'c')) + "\r\n";
  // "DT", "0267AA" and eight blanks; the low byte of their sum is E9.
  const std::string header_ = "S013000044543032363741412020202020202020E9\r\n";
};

TEST(IsFlashFile, GoesByTheName) {
  EXPECT_TRUE(IsFlashFile("A.MHX"));
  EXPECT_TRUE(IsFlashFile("a.hex"));
  EXPECT_FALSE(IsFlashFile("A.MSX"));
  EXPECT_FALSE(IsFlashFile("MHX"));
}

TEST_F(CompanionCheckTest, FindsNothingInASetThatBelongsTogether) {
  EXPECT_THAT(Check(), IsEmpty());
}

TEST_F(CompanionCheckTest, MissesNoFilesOfWhichNoneIsThere) {
  for (const char* name : {"FW0267AB.mtx", "FW0267AB.SA1", "FW0267AB.SA2", "FW0267AB.MSX"}) {
    fs::remove(folder_ / name);
  }
  EXPECT_THAT(Check(), IsEmpty());
}

TEST_F(CompanionCheckTest, FindsSectionFilesOfAnotherCompilation) {
  folder_.Write("FW0267AB.SA2", std::string(32, 'x'));
  folder_.Write("FW0267AB.SA3", "left");
  fs::remove(folder_ / "FW0267AB.SA1");
  EXPECT_THAT(Check(), ElementsAre("FW0267AB.SA1 is missing",
                                   HasSubstr("FW0267AB.SA2 does not belong to it"),
                                   HasSubstr("FW0267AB.SA3 does not belong to it")));
}

TEST_F(CompanionCheckTest, FindsAFlashFileWithoutItsEnd) {
  folder_.Write("FW0267AB.MHX", records_.substr(0, records_.size() - 46));
  EXPECT_THAT(Check(), ElementsAre(HasSubstr("FW0267AB.SA2 does not belong to it, which has 16"),
                                   "FW0267AB.MSX is no copy of it"));
}

TEST_F(CompanionCheckTest, FindsACopyOfAnotherFlashFile) {
  folder_.Write("FW0267AB.MSX", header_ + records_ + records_);
  EXPECT_THAT(Check(), ElementsAre("FW0267AB.MSX is no copy of it"));
}

TEST_F(CompanionCheckTest, FindsACopyThatEndsInItsHeader) {
  folder_.Write("FW0267AB.MSX", header_.substr(0, header_.size() - 2));
  EXPECT_THAT(Check(), ElementsAre("FW0267AB.MSX is no copy of it"));
}

TEST_F(CompanionCheckTest, MindsNoMsxFileThatIsNoCopy) {
  folder_.Write("FW0267AB.MSX", test::MsxFile(1));
  EXPECT_THAT(Check(), IsEmpty());
}

TEST_F(CompanionCheckTest, FindsAMessageFileOfAnotherMemory) {
  // Two languages of three slots of four cells are 24 bytes.
  folder_.Write("FW0267AB.MES", MesFile{.mem_start = "00FF9FF0"}.Bytes());
  EXPECT_THAT(Check(), ElementsAre("FW0267AB.MES declares 24 bytes from address FF9FF0 on, it has "
                                   "48 from FF9FF0 on"));
  folder_.Write("FW0267AB.MES", MesFile{.mem_start = "00FF9FF0", .stride = 6}.Bytes());
  EXPECT_THAT(Check(), IsEmpty());
  folder_.Write("FW0267AB.MES", "LABEL DC.B 'a source'");
  EXPECT_THAT(Check(), IsEmpty());
}

TEST_F(CompanionCheckTest, LooksForNoSectionFilesOfAHexFile) {
  folder_.Write("FW0267AB.hex", records_);
  EXPECT_THAT(CheckCompanions(folder_ / "FW0267AB.hex"), IsEmpty());
}

}  // namespace
}  // namespace vendlingua
