#include "core/transfer/carried_texts.h"

#include <gmock/gmock.h>

#include <string>

#include "core/formats/message_file.h"
#include "core/platform/errors.h"
#include "support/message_files.h"
#include "support/temporary_folder.h"

namespace vendlingua {
namespace {

using test::Text;

// Message 3 of the built-in table: "Credito þ þþþþþþ".
constexpr std::size_t kCredit = 3;

class CarriedTexts : public testing::Test {
 protected:
  MessageSet Read(std::string_view name, std::string_view content) const {
    return ReadMessageFile(folder_.Write(name, content));
  }

  test::TemporaryFolder folder_;
};

TEST_F(CarriedTexts, AreThoseOfAMesFile) {
  const MessageSet set = Read("A.MES", test::MesFile().Bytes());
  EXPECT_EQ(Text(TextsToCarry(set, 1).at(2).First(4)), "1222");
  EXPECT_EQ(Text(CellsToStore(set, DisplayText(test::Codes("a\xFE")))), "a\xFE  ");
}

TEST_F(CarriedTexts, OfAnMsxFileHavePlaceholdersInItsBlanks) {
  std::string content = test::MsxFile(1);
  const std::string old_line = test::S2Line(0xFF0000 + 16 * kCredit, test::MsxMessage(1, kCredit));
  content.replace(content.find(old_line), old_line.size(),
                  test::S2Line(0xFF0000 + 16 * kCredit, "Credit       7  "));
  const MessageSet set = Read("A.MSX", content);
  EXPECT_EQ(Text(TextsToCarry(set, 1).at(kCredit).First(16)),
            "Credit  \xFE \xFE\xFE\xFE"
            "7\xFE\xFE");
  EXPECT_EQ(TextsToCarry(set, 0).at(kCredit), DisplayText(BuiltInMessages().at(kCredit)));
}

TEST_F(CarriedTexts, AreStoredInAnMsxFileWithBlanksForPlaceholders) {
  const MessageSet set = Read("A.MSX", test::MsxFile(1));
  EXPECT_EQ(Text(CellsToStore(set, DisplayText(test::Codes("Nr. \xFE\xFE!")))), "Nr.   !         ");
}

TEST_F(CarriedTexts, AreNotWiderThanCanBeEdited) {
  test::MesFile mes;
  mes.width = 41;
  const MessageSet set = Read("A.MES", mes.Bytes());
  EXPECT_THROW(TextsToCarry(set, 1), FileError);
}

}  // namespace
}  // namespace vendlingua
