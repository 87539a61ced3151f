#include "core/formats/message_file.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <string>

#include "core/formats/message_texts.h"
#include "core/platform/errors.h"
#include "support/message_files.h"
#include "support/temporary_folder.h"

namespace vendlingua {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::HasSubstr;

class MessageFileTest : public testing::Test {
 protected:
  MessageSet Read(std::string_view name, std::string_view content) const {
    return ReadMessageFile(folder_.Write(name, content));
  }

  // Why a file is refused.
  std::string Refusal(std::string_view name, std::string_view content) const {
    try {
      Read(name, content);
    } catch (const FileError& error) {
      EXPECT_THAT(error.what(), HasSubstr((folder_ / name).string()));
      return error.reason();
    }
    return "";
  }

  test::TemporaryFolder folder_;
};

TEST(MessageFileType, IsTheNameFromTheFirstDotOnInUpperCase) {
  EXPECT_EQ(MessageFileType("FW0417AB.MES"), ".MES");
  EXPECT_EQ(MessageFileType("fw0417ab.msx"), ".MSX");
  EXPECT_EQ(MessageFileType("TEST.MSX.MES"), ".MSX.MES");
  EXPECT_EQ(MessageFileType(".MES"), ".MES");
}

TEST(MessageFileType, IsEmptyWithoutADot) {
  EXPECT_EQ(MessageFileType("FW0417AB"), "");
  EXPECT_EQ(MessageFileType(""), "");
}

TEST(MessageFileType, DoesNotLookAtFolders) {
  EXPECT_EQ(MessageFileType(fs::path("v1.2.MSX") / "TEST.MES"), ".MES");
  EXPECT_EQ(MessageFileType(fs::path("v1.2.MSX") / "TEST"), "");
}

TEST_F(MessageFileTest, IsASourceByAFirstByteOf32OrMore) {
  EXPECT_FALSE(IsAssemblerSource(folder_.Write("A.MES", std::string(1, '\0'))));
  EXPECT_FALSE(IsAssemblerSource(folder_.Write("B.MES", "\x1F")));
  EXPECT_TRUE(IsAssemblerSource(folder_.Write("C.MES", "\x20")));
  EXPECT_TRUE(IsAssemblerSource(folder_.Write("D.MES", "\xFF")));
}

TEST_F(MessageFileTest, CannotBeToldWhenItIsEmptyOrMissing) {
  EXPECT_THROW(IsAssemblerSource(folder_.Write("A.MES", "")), FileError);
  EXPECT_THROW(IsAssemblerSource(folder_ / "none.MES"), FileError);
}

TEST_F(MessageFileTest, IsReadBesideTheOpenOne) {
  const MessageSet set = Read("A.MES", test::MesFile().Bytes());
  EXPECT_EQ(set.LangCount, 2);
  EXPECT_EQ(set.Width(), 4U);
  EXPECT_EQ(set.LastMsg, 2);
  EXPECT_EQ(set.LangStride, 3);
  EXPECT_EQ(set.MemStart, 0x6000U);
  EXPECT_EQ(set.phase, Phase::kFileOpen);
  EXPECT_THAT(set.language_names, ElementsAre("Default", "ITALIANO"));
  EXPECT_EQ(set.file_content, test::MesFile().Bytes());
}

TEST_F(MessageFileTest, HoldsItsTextsFromThenOn) {
  const MessageSet mes = Read("A.MES", test::MesFile().Bytes());
  const MessageSet msx = Read("A.MSX", test::MsxFile(2));
  fs::remove(folder_ / "A.MES");
  fs::remove(folder_ / "A.MSX");
  EXPECT_EQ(test::Text(TextsOf(mes, mes.file_content, 1).at(2).First(4)), "1222");
  EXPECT_EQ(test::Text(TextsOf(msx, msx.file_content, 2).at(454).First(16)),
            test::MsxMessage(2, 454));
  EXPECT_THAT(msx.language_names, ElementsAre("Italiano", "LANGUAGE 1", "LANGUAGE 2"));
}

TEST_F(MessageFileTest, DeclaresItsDisplayType) {
  test::MesFile mes;
  mes.flags = "06";
  EXPECT_EQ(Read("A.MES", mes.Bytes()).DisplayType, 1U);
}

TEST_F(MessageFileTest, IsKnownByItsName) {
  EXPECT_EQ(Refusal("A.csv", test::MesFile().Bytes()),
            "is no message file; its name must end in .MES or .MSX and hold no other dot");
}

TEST_F(MessageFileTest, IsNoSource) {
  EXPECT_EQ(Refusal("A.MES", " DC.B 'ABCD'"),
            "is an assembler source; import it to make a message file of it");
}

TEST_F(MessageFileTest, IsOfAManagedFirmware) {
  EXPECT_EQ(Refusal("A.MSX", test::MsxFile(1, "0999")),
            "belongs to a firmware that is not managed");
  EXPECT_EQ(Refusal("B.MSX", "S1"), "belongs to a firmware that is not managed");
}

TEST_F(MessageFileTest, IsRefusedWhenItIsDamaged) {
  EXPECT_EQ(Refusal("A.MES", ""), "the file is empty");
  const std::string content = test::MesFile().Bytes();
  for (const std::size_t size : {1U, 23U, 24U, 43U}) {
    EXPECT_NE(Refusal("A.MES", content.substr(0, size)), "") << size;
  }
}

TEST_F(MessageFileTest, MayBeMissing) {
  EXPECT_THROW(ReadMessageFile(folder_ / "none.MES"), FileError);
}

}  // namespace
}  // namespace vendlingua
