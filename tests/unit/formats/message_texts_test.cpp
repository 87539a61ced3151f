#include "core/formats/message_texts.h"

#include <gmock/gmock.h>

#include <string>
#include <utility>

#include "core/platform/errors.h"
#include "support/engine_test.h"

namespace vendlingua {
namespace {

using test::MesFile;
using test::MsxFile;
using test::MsxMessage;
using test::Text;

class LanguageTexts : public test::EngineTest {
 protected:
  void Read(int language) { texts_ = TextsOf(set_, language); }

  std::string Message(std::size_t message) const {
    return Text(texts_.at(message).First(set_.Width()));
  }

  MessageTexts texts_;
};

TEST_F(LanguageTexts, ComeFromTheBlocksOfAMesFile) {
  Open("FILE.MES", MesFile().Bytes());
  Read(1);
  EXPECT_EQ(Message(0), "1000");
  EXPECT_EQ(Message(2), "1222");
  Read(0);
  EXPECT_EQ(Message(2), "0222");
}

TEST_F(LanguageTexts, ComeFromTheLinesOfAnMsxFile) {
  Open("FILE.MSX", MsxFile(2));
  Read(2);
  EXPECT_EQ(Message(0), MsxMessage(2, 0));
  EXPECT_EQ(Message(454), MsxMessage(2, 454));
}

TEST_F(LanguageTexts, AreBlankForANewLanguage) {
  for (const auto& [name, content] :
       {std::pair("FILE.MES", MesFile().Bytes()), std::pair("FILE.MSX", MsxFile(1))}) {
    Open(name, content);
    Read(kNewLanguage);
    EXPECT_EQ(texts_[0], DisplayText()) << name;
    EXPECT_EQ(texts_[set_.LastMsg], DisplayText()) << name;
  }
}

TEST_F(LanguageTexts, EndWithLastMsg) {
  Open("FILE.MES", MesFile().Bytes());
  EXPECT_EQ(TextsOf(set_, 1).size(), 3U);
  EXPECT_EQ(TextsOf(set_, kNewLanguage).size(), 3U);
}

TEST_F(LanguageTexts, AreTheBuiltInTableForLanguage0OfAnMsxFile) {
  Open("FILE.MSX", MsxFile(1));
  Read(0);
  EXPECT_EQ(Message(0), "    MP0417AA    ");
  EXPECT_EQ(Message(454), "  454 Messaggio ");
}

TEST_F(LanguageTexts, OfAMsxFileCannotBeReadWhereItWasCut) {
  Open("FILE.MSX", MsxFile(1));
  folder_.Write("FILE.MSX", MsxFile(1).substr(0, 1000));
  EXPECT_THROW(Read(1), FileError);
}

TEST_F(LanguageTexts, ComeFromAContentThatIsGiven) {
  Open("FILE.MES", MesFile().Bytes());
  MesFile other;
  other.names = {"Default", "ITALIANO", "ENGLISH"};
  EXPECT_EQ(Text(TextsOf(set_, other.Bytes(), 2).at(1).First(4)), "2111");
}

TEST_F(LanguageTexts, CanBeHadWithAllTheirCells) {
  MesFile mes;
  mes.width = 50;
  Open("FILE.MES", mes.Bytes());
  EXPECT_EQ(Text(CellsOf(set_, set_.file_content, 1)),
            mes.Message(1, 0) + mes.Message(1, 1) + mes.Message(1, 2));
}

TEST_F(LanguageTexts, OfAnMsxFileCanBeHadWithAllTheirCells) {
  Open("FILE.MSX", MsxFile(2));
  const DisplayCodes cells = CellsOf(set_, set_.file_content, 2);
  EXPECT_EQ(cells.size(), 455U * 16);
  EXPECT_EQ(Text(std::span(cells).subspan(454 * 16)), MsxMessage(2, 454));
}

TEST_F(LanguageTexts, AreBlankBehindTheEndOfTheFile) {
  const std::string content = MesFile().Bytes();
  Open("FILE.MES", content);
  // The last block ends behind its first message.
  const std::string cut = content.substr(0, content.size() - 3 * 4);
  EXPECT_EQ(Text(CellsOf(set_, cut, 1)), "1000        ");
}

}  // namespace
}  // namespace vendlingua
