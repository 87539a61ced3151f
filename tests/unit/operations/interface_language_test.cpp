#include "core/operations/interface_language.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <random>
#include <set>
#include <string>
#include <string_view>

#include "core/document/display_code.h"
#include "core/platform/errors.h"
#include "core/texts/english_texts.h"
#include "support/temporary_folder.h"

namespace vendlingua {
namespace {

class InterfaceLanguageTest : public testing::Test {
 protected:
  InterfaceLanguageTest() { workspace_.folders.program = folder_.path(); }

  // Loads `lines` in the first place and asks whether `candidate` can follow.
  bool CanFollow(std::string_view lines, std::string_view candidate) {
    folder_.Write("current.lng", lines);
    folder_.Write("candidate.lng", candidate);
    LoadLanguageFile(workspace_, "current.lng");
    return CheckLanguageFile(workspace_, "current.lng", "candidate.lng");
  }

  const UiText& ui_text() const { return workspace_.ui_text; }

  test::TemporaryFolder folder_;
  Workspace workspace_;
};

TEST_F(InterfaceLanguageTest, MakesEveryLineAnEntry) {
  folder_.Write("uno.lng", "&File\r\n&Apri...\r\n\r\n&Esci\r\n");
  LoadLanguageFile(workspace_, "uno.lng");
  EXPECT_EQ(ui_text().Entry(1), "&File");
  EXPECT_EQ(ui_text().Entry(2), "&Apri...");
  EXPECT_EQ(ui_text().Entry(3), "");
  EXPECT_EQ(ui_text().Entry(4), "&Esci");
}

TEST_F(InterfaceLanguageTest, CountsASectionMarkAsAnEntry) {
  folder_.Write("uno.lng", "uno\r\n;-- editor\r\ntre\r\n");
  LoadLanguageFile(workspace_, "uno.lng");
  EXPECT_EQ(ui_text().Entry(2), ";-- editor");
  EXPECT_EQ(ui_text().Entry(3), "tre");
}

TEST_F(InterfaceLanguageTest, ReadsWindows1252) {
  folder_.Write("uno.lng", "perch\xE9 \x80\r\n");
  LoadLanguageFile(workspace_, "uno.lng");
  EXPECT_EQ(ui_text().Entry(1), "perché €");
}

TEST_F(InterfaceLanguageTest, TakesLinesThatEndInLfAndALastLineWithoutEnd) {
  folder_.Write("uno.lng", "uno\ndue");
  LoadLanguageFile(workspace_, "uno.lng");
  EXPECT_EQ(ui_text().Entry(1), "uno");
  EXPECT_EQ(ui_text().Entry(2), "due");
}

TEST_F(InterfaceLanguageTest, KeepsTheEntriesBehindTheLastLine) {
  folder_.Write("long.lng", "a\r\nb\r\nc\r\n");
  folder_.Write("short.lng", "A\r\n");
  LoadLanguageFile(workspace_, "long.lng");
  LoadLanguageFile(workspace_, "short.lng");
  EXPECT_EQ(ui_text().Entry(1), "A");
  EXPECT_EQ(ui_text().Entry(2), "b");
  EXPECT_EQ(ui_text().Entry(3), "c");
}

TEST_F(InterfaceLanguageTest, ChangesNothingForAnEmptyFile) {
  folder_.Write("uno.lng", "uno\r\n");
  folder_.Write("empty.lng", "");
  LoadLanguageFile(workspace_, "uno.lng");
  LoadLanguageFile(workspace_, "empty.lng");
  EXPECT_EQ(ui_text().Entry(1), "uno");
}

TEST_F(InterfaceLanguageTest, ThrowsForAMissingFile) {
  folder_.Write("uno.lng", "uno\r\n");
  EXPECT_THROW(LoadLanguageFile(workspace_, "missing.lng"), FileError);
  EXPECT_THROW(CheckLanguageFile(workspace_, "uno.lng", "missing.lng"), FileError);
  EXPECT_THROW(CheckLanguageFile(workspace_, "missing.lng", "uno.lng"), FileError);
}

TEST_F(InterfaceLanguageTest, ThrowsForAFolder) {
  folder_.Write("uno.lng", "uno\r\n");
  std::filesystem::create_directory(folder_ / "folder.lng");
  EXPECT_THROW(LoadLanguageFile(workspace_, "folder.lng"), FileError);
  EXPECT_THROW(CheckLanguageFile(workspace_, "uno.lng", "folder.lng"), FileError);
}

TEST_F(InterfaceLanguageTest, ThrowsForAFileThatIsTooLargeToBeDrawn) {
  folder_.Write("most.lng", std::string(kLanguageFileLimit, 'x'));
  folder_.Write("more.lng", std::string(kLanguageFileLimit + 1, 'x'));
  LoadLanguageFile(workspace_, "most.lng");
  EXPECT_EQ(ui_text().Entry(1).size(), kLanguageFileLimit);
  EXPECT_THROW(LoadLanguageFile(workspace_, "more.lng"), FileError);
  EXPECT_THROW(CheckLanguageFile(workspace_, "most.lng", "more.lng"), FileError);
}

TEST_F(InterfaceLanguageTest, TakesEveryByteButALineEndIntoAnEntry) {
  std::mt19937 random(34);
  std::string line(500, ' ');
  for (char& byte : line) {
    do {
      byte = static_cast<char>(random());
    } while (byte == '\r' || byte == '\n');
  }
  folder_.Write("uno.lng", line + "\r\ndue\r\n");
  LoadLanguageFile(workspace_, "uno.lng");
  EXPECT_EQ(BytesFromCodes(ToDisplayCodes(ui_text().Entry(1)).codes), line);
  EXPECT_EQ(ui_text().Entry(2), "due");
}

TEST_F(InterfaceLanguageTest, AcceptsACandidateThatDiffersInOrdinaryLines) {
  EXPECT_TRUE(CanFollow("uno\r\n;-- a\r\ntre\r\n", "one\r\n;-- b\r\nthree\r\n"));
}

TEST_F(InterfaceLanguageTest, LoadsTheCandidateOnTheWay) {
  CanFollow("uno\r\n;-- a\r\ntre\r\n", "one\r\n;-- b\r\nthree\r\n");
  EXPECT_EQ(ui_text().Entry(1), "one");
  EXPECT_EQ(ui_text().Entry(2), ";-- b");
  EXPECT_EQ(ui_text().Entry(3), "three");
}

TEST_F(InterfaceLanguageTest, RefusesACandidateWithOneLineFewer) {
  EXPECT_FALSE(CanFollow("uno\r\ndue\r\ntre\r\n", "one\r\ntwo\r\n"));
}

TEST_F(InterfaceLanguageTest, RefusesACandidateThatIsCutBeforeItsLastLine) {
  constexpr std::string_view kCurrent = "uno\r\n;-- a\r\ntre\r\n";
  constexpr std::string_view kCandidate = "one\r\n;-- b\r\nthree\r\n";
  const std::size_t last_line = kCandidate.find("three");
  for (std::size_t size = 0; size <= kCandidate.size(); ++size) {
    EXPECT_EQ(CanFollow(kCurrent, kCandidate.substr(0, size)), size > last_line) << size;
  }
}

TEST_F(InterfaceLanguageTest, RefusesACandidateWhoseLinesEndInALoneCr) {
  EXPECT_FALSE(CanFollow("uno\r\ndue\r\n", "one\rtwo\r"));
}

TEST_F(InterfaceLanguageTest, RefusesAnEmptyCandidate) { EXPECT_FALSE(CanFollow("uno\r\n", "")); }

TEST_F(InterfaceLanguageTest, AcceptsALongerCandidateWithoutReadingItsExtraLines) {
  EXPECT_TRUE(CanFollow("uno\r\n", "one\r\ntwo\r\n"));
  EXPECT_EQ(ui_text().Entry(1), "one");
  EXPECT_EQ(ui_text().Entry(2), "");
}

TEST_F(InterfaceLanguageTest, RefusesACandidateWhoseSectionMarksStandElsewhere) {
  EXPECT_FALSE(CanFollow("uno\r\n;-- a\r\ntre\r\n", ";-- a\r\ntwo\r\nthree\r\n"));
  EXPECT_FALSE(CanFollow("uno\r\n;-- a\r\ntre\r\n", "one\r\ntwo\r\n;-- a\r\n"));
}

TEST_F(InterfaceLanguageTest, TellsASectionMarkByItsFirstThreeCharacters) {
  EXPECT_FALSE(CanFollow(";-- a\r\n", ";- a\r\n"));
  EXPECT_FALSE(CanFollow(";-- a\r\n", " ;-- a\r\n"));
  EXPECT_TRUE(CanFollow(";-- a\r\n", ";--\r\n"));
}

// Only the marks of the file in use are looked for in the candidate.
TEST_F(InterfaceLanguageTest, AcceptsACandidateWithFurtherSectionMarks) {
  EXPECT_TRUE(CanFollow("uno\r\ndue\r\n", "one\r\n;-- b\r\n"));
}

TEST_F(InterfaceLanguageTest, LeavesTheTextsPartlyOverwrittenWhenItRefuses) {
  CanFollow("uno\r\n;-- a\r\ntre\r\n", "one\r\ntwo\r\nthree\r\n");
  EXPECT_EQ(ui_text().Entry(1), "one");
  EXPECT_EQ(ui_text().Entry(2), ";-- a");
  EXPECT_EQ(ui_text().Entry(3), "tre");
}

TEST_F(InterfaceLanguageTest, IsRestoredByLoadingThePreviousFileAgain) {
  CanFollow("uno\r\n;-- a\r\ntre\r\n", "one\r\ntwo\r\nthree\r\n");
  LoadLanguageFile(workspace_, "current.lng");
  EXPECT_EQ(ui_text().Entry(1), "uno");
  EXPECT_EQ(ui_text().Entry(2), ";-- a");
  EXPECT_EQ(ui_text().Entry(3), "tre");
}

TEST(LanguageFiles, HaveATextOnEveryLineAndEndItWithCrLf) {
  for (const auto& entry : std::filesystem::directory_iterator(VENDLINGUA_LANGUAGES_FOLDER)) {
    const std::string content = test::Slurp(entry.path());
    std::size_t start = 0;
    for (std::size_t end = 0; (end = content.find('\n', start)) != std::string::npos;
         start = end + 1) {
      ASSERT_GT(end, start + 1) << entry.path() << " at byte " << start;
      ASSERT_EQ(content[end - 1], '\r') << entry.path() << " at byte " << end;
    }
    EXPECT_EQ(start, content.size()) << entry.path() << " lacks its last line end";
  }
}

// The values of an error stand in its sentence whatever the language.
TEST(LanguageFiles, HoldTheSameValuesAsTheEnglishTexts) {
  const auto values_in = [](const std::string& text) {
    std::set<std::string> values;
    for (std::size_t at = text.find('{'); at != std::string::npos; at = text.find('{', at + 1)) {
      values.insert(text.substr(at, 3));
    }
    return values;
  };
  for (const auto& entry : std::filesystem::directory_iterator(VENDLINGUA_LANGUAGES_FOLDER)) {
    Workspace workspace;
    workspace.folders.program = VENDLINGUA_LANGUAGES_FOLDER;
    LoadLanguageFile(workspace, entry.path().filename().string());
    for (std::size_t number = 1; !EnglishTexts().Entry(number).empty(); ++number) {
      EXPECT_EQ(values_in(workspace.ui_text.Entry(number)), values_in(EnglishTexts().Entry(number)))
          << entry.path() << " line " << number;
    }
  }
}

TEST(LanguageFiles, CanFollowEachOther) {
  Workspace workspace;
  workspace.folders.program = VENDLINGUA_LANGUAGES_FOLDER;
  for (const char* language : {"dansk", "deutsch", "english", "espanol", "francais", "nederlands",
                               "portugues", "svenska"}) {
    const std::string file = std::string(language) + std::string(kLanguageFileExtension);
    EXPECT_TRUE(CheckLanguageFile(workspace, "italiano.lng", file)) << language;
    EXPECT_TRUE(CheckLanguageFile(workspace, file, "italiano.lng")) << language;
  }
}

}  // namespace
}  // namespace vendlingua
