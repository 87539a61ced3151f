#include "core/formats/message_texts.h"

#include <gmock/gmock.h>

#include <string>
#include <utility>

#include "core/platform/errors.h"
#include "core/presentation/menu_state.h"
#include "support/engine_test.h"

namespace vendlingua {
namespace {

using test::Codes;
using test::MesFile;
using test::MsxFile;
using test::MsxMessage;
using test::Text;

class LanguageTexts : public test::EngineTest {
 protected:
  LanguageTexts() { texts_.fill(DisplayText(Codes("old"))); }

  void Read(int language) { ReadLanguageTexts(set_, language, texts_); }

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

TEST_F(LanguageTexts, KeepWhatStandsBehindLastMsg) {
  Open("FILE.MES", MesFile().Bytes());
  Read(1);
  EXPECT_EQ(Message(3), "old ");
  Read(kNewLanguage);
  EXPECT_EQ(Message(3), "old ");
}

TEST_F(LanguageTexts, KeepAllTheyHeldWhenReadingFails) {
  Open("FILE.MES", MesFile().Bytes());
  folder_.Write("FILE.MES", MesFile().Bytes().substr(0, 60 + 20 + 9));
  EXPECT_THROW(Read(1), FileError);
  EXPECT_EQ(Message(0), "old ");

  Open("FILE.MSX", MsxFile(1));
  folder_.Write("FILE.MSX", MsxFile(1).substr(0, 1000));
  EXPECT_THROW(Read(1), FileError);
  EXPECT_EQ(Message(0), "old" + std::string(13, ' '));
}

TEST_F(LanguageTexts, KeepAllTheyHeldWithoutAnOpenFile) {
  Read(1);
  EXPECT_EQ(texts_[0], DisplayText(Codes("old")));
}

}  // namespace
}  // namespace vendlingua
