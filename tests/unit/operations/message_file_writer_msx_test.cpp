#include <filesystem>
#include <string>
#include <string_view>

#include "support/same_bytes.h"
#include "unit/operations/message_file_writer_test.h"

namespace vendlingua {
namespace {

namespace fs = std::filesystem;
using test::HexOf;
using test::MsxFile;
using test::MsxMessage;
using test::S2Line;
using test::SameBytes;
using test::Slurp;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

// A file with two languages, of which the second is edited.
class MsxPatch : public test::MessageFileWriterTest {
 protected:
  MsxPatch() {
    Open("FILE.MSX", bytes_);
    engine_.languages.ChooseOrigin(0);
    engine_.languages.ChooseDestination(2);
  }

  // The file with another text as message `message` of language `language`.
  std::string With(std::size_t language, std::size_t message, std::string_view text) const {
    const std::size_t address = 0xFF0000 + ((language - 1) * 455 + message) * 16;
    const std::string old_line = S2Line(address, MsxMessage(language, message));
    return std::string(bytes_).replace(bytes_.find(old_line), old_line.size(),
                                       S2Line(address, text));
  }

  std::string Saved() {
    ExpectSaved();
    return Slurp(folder_ / "FILE.MSX");
  }

  const std::string bytes_ = MsxFile(2);
};

TEST_F(MsxPatch, ChangesNothingWhenNothingChanged) { EXPECT_TRUE(SameBytes(Saved(), bytes_)); }

TEST_F(MsxPatch, RewritesTheLinesOfTheEditedLanguage) {
  SetDestination(454, "Vuoto acqua \xFE\xFE\xFE\xFE");
  EXPECT_TRUE(SameBytes(Saved(), With(2, 454, "Vuoto acqua \xFE\xFE\xFE\xFE")));
}

TEST_F(MsxPatch, StoresTheEditBoxFirst) {
  engine_.editing.GoTo(20);
  Type("TWENTY");
  EXPECT_TRUE(SameBytes(Saved(), With(2, 20, "TWENTY          ")));
}

TEST_F(MsxPatch, RewritesTheFirstLanguageBehindTheHeaderLine) {
  engine_.languages.ChooseDestination(1);
  SetDestination(1, "FIRST           ");
  EXPECT_TRUE(SameBytes(Saved(), With(1, 1, "FIRST           ")));
}

TEST_F(MsxPatch, ClearsModified) {
  Type("XY");
  ExpectSaved();
  EXPECT_EQ(set_.Modified, kFalse);
}

TEST_F(MsxPatch, OverwritesTheFirstLanguageWhenANewOneWasNamed) {
  engine_.languages.StartNewLanguage(2);
  ASSERT_EQ(set_.DestLang, 0);
  dialogs_.input_answers = {"english"};
  const std::string saved = Saved();
  const std::string second_text = HexOf(MsxMessage(2, 454));
  EXPECT_EQ(saved.size(), bytes_.size());
  EXPECT_EQ(saved.substr(44 + 454 * 46 + 10, 32), second_text) << "as language 1";
  EXPECT_EQ(saved.substr(44 + 909 * 46 + 10, 32), second_text) << "still as language 2";
  EXPECT_EQ(set_.DestLang, 0);
  EXPECT_FALSE(menus().mnuDes[3].visible);
}

// The first line held one byte less than the new one: the language grows by two characters, and the
// two characters behind it are lost.
TEST_F(MsxPatch, ShiftsTheLinesThatFollowADifferentLength) {
  const std::string old_line = S2Line(0xFF0000, MsxMessage(1, 0));
  const std::string short_line = "S213FF0000" + HexOf(MsxMessage(1, 0).substr(0, 15)) + "AA";
  std::string bytes = bytes_;
  Open("FILE.MSX", bytes.replace(44, old_line.size(), short_line));
  engine_.languages.ChooseOrigin(0);
  engine_.languages.ChooseDestination(1);
  SetDestination(0, std::string(16, 'A'));
  Type(std::string(16, 'A'));
  const std::string saved = Saved();
  // 0x13 + 0xFF + 16 x 0x41 = 0x522
  EXPECT_EQ(saved.substr(44, 44), "S213FF0000" + HexOf(std::string(16, 'A')) + "DD");
  EXPECT_TRUE(SameBytes(saved.substr(44 + 46), bytes_.substr(44 + 46, 454 * test::kMsxLine) +
                                                   bytes_.substr(44 + 455 * 46 + 2)));
}

TEST_F(MsxPatch, LeavesAFileThatEndsInsideTheLanguageAsItWas) {
  const std::string cut = bytes_.substr(0, bytes_.size() - 46);
  folder_.Write("FILE.MSX", cut);
  EXPECT_THAT(ReasonOfFailure(), HasSubstr("is not the file any more"));
  EXPECT_TRUE(SameBytes(Slurp(folder_ / "FILE.MSX"), cut));
  EXPECT_THAT(dialogs_.messages, IsEmpty());
}

TEST_F(MsxPatch, EndsALastLineThatHadNoEnd) {
  Open("OPEN.MSX", bytes_.substr(0, bytes_.size() - 2));
  engine_.languages.ChooseDestination(2);
  EXPECT_EQ(engine_.writer.Save().result, SaveOutcome::kSaved);
  EXPECT_TRUE(SameBytes(Slurp(folder_ / "OPEN.MSX"), bytes_));
}

TEST_F(MsxPatch, LeavesAFileWhoseLinesDoNotEndInCrLfAsItWas) {
  std::string bytes = bytes_;
  bytes.erase(44 + 500 * 46 - 2, 1);
  folder_.Write("FILE.MSX", bytes);
  EXPECT_THAT(ReasonOfFailure(), HasSubstr("is not the file any more"));
  EXPECT_TRUE(SameBytes(Slurp(folder_ / "FILE.MSX"), bytes));
}

TEST_F(MsxPatch, TellsThatTheDirectoryIsNotReady) {
  fs::remove_all(folder_.path());
  ReasonOfFailure();
  ASSERT_THAT(dialogs_.messages, SizeIs(1));
  EXPECT_EQ(dialogs_.messages[0].text, " Directory not ready");
}

}  // namespace
}  // namespace vendlingua
