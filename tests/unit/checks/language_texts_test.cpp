#include "core/checks/language_texts.h"

#include <gmock/gmock.h>

#include "core/platform/errors.h"
#include "support/engine_test.h"

namespace vendlingua {
namespace {

using test::MesFile;
using test::MsxFile;
using testing::SizeIs;

class LanguageTextsTest : public test::EngineTest {
 protected:
  std::string Message(const LanguageTexts& language, std::size_t message) const {
    return test::Text(language.texts.at(message).First(set_.Width()));
  }

  const MesFile file_{.names = {"Default", "ITALIANO", "ENGLISH"}};
  /// Where the messages of the last language begin.
  const std::size_t last_ = 24 + 2 * file_.BlockLength() + 20;
};

TEST_F(LanguageTextsTest, AreThoseOfAllLanguages) {
  Open("FILE.MES", file_.Bytes());
  const std::vector<LanguageTexts> languages = ReadLanguages(set_);
  ASSERT_THAT(languages, SizeIs(3));
  EXPECT_EQ(Message(languages[0], 1), "0111");
  EXPECT_EQ(Message(languages[2], 2), "2222");
  EXPECT_EQ(languages[2].held, 3U);
}

TEST_F(LanguageTextsTest, OfALanguageThatEndsEarlyAreBlankFromThereOn) {
  Open("FILE.MES", file_.Bytes().substr(0, last_ + 4));
  const LanguageTexts last = ReadLanguages(set_).at(2);
  EXPECT_EQ(last.held, 1U);
  ASSERT_THAT(last.texts, SizeIs(3));
  EXPECT_EQ(Message(last, 0), "2000");
  EXPECT_EQ(Message(last, 1), "    ");
}

TEST_F(LanguageTextsTest, OfALanguageThatEndsInsideAMessageAreThoseBefore) {
  Open("FILE.MES", file_.Bytes().substr(0, last_ + 7));
  const LanguageTexts last = ReadLanguages(set_).at(2);
  EXPECT_EQ(last.held, 1U);
  EXPECT_EQ(Message(last, 0), "2000");
  EXPECT_EQ(Message(last, 1), "    ");
}

TEST_F(LanguageTextsTest, MayBeNone) {
  Open("FILE.MES", file_.Bytes().substr(0, last_));
  EXPECT_EQ(ReadLanguages(set_).at(2).held, 0U);
}

TEST_F(LanguageTextsTest, OfAnMsxFileThatEndsEarlyAreThoseOfItsLines) {
  const std::size_t line = 2 + 2 + 6 + 32 + 2 + 2;
  const std::string whole = MsxFile(2);
  Open("FILE.MSX", whole.substr(0, whole.size() - 200 * line));
  const std::vector<LanguageTexts> languages = ReadLanguages(set_);
  ASSERT_THAT(languages, SizeIs(3));
  EXPECT_EQ(languages[0].held, 455U);
  EXPECT_EQ(languages[1].held, 455U);
  EXPECT_EQ(languages[2].held, 255U);
  EXPECT_EQ(Message(languages[2], 254), test::MsxMessage(2, 254));
}

TEST_F(LanguageTextsTest, CannotBeReadFromADamagedLine) {
  std::string content = MsxFile(1);
  content[content.find("\r\n") + 2 + 12] = 'x';
  Open("FILE.MSX", content);
  EXPECT_THROW(ReadLanguages(set_), FileError);
}

}  // namespace
}  // namespace vendlingua
