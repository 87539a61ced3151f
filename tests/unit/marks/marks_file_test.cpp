#include "core/marks/marks_file.h"

#include <gmock/gmock.h>

#include <filesystem>

#include "core/platform/errors.h"
#include "support/message_files.h"
#include "support/skip_on_windows.h"
#include "support/temporary_folder.h"

namespace vendlingua {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;

const char* const kOneMark = R"({
 "format": "vendlingua-marks",
 "version": 1,
 "marks": [
  {
   "language": "ENGLISH",
   "message": 12,
   "origin": "Caffè",
   "mark": "needs work",
   "remark": "too \"long\""
  }
 ]
}
)";

KeptMark OneMark() { return {"ENGLISH", 12, "Caff\u00e8", {Mark::kNeedsWork, "too \"long\""}}; }

TEST(MarksFileTest, LiesBesideTheMessageFile) {
  EXPECT_EQ(MarksFileOf("/a/NAME.MES"), fs::path("/a/NAME.MES.marks"));
}

TEST(MarksFileTest, IsReadableJson) {
  EXPECT_EQ(MarksText({OneMark()}), kOneMark);
  EXPECT_EQ(ParseMarks(kOneMark), KeptMarks{OneMark()});
}

TEST(MarksFileTest, KeepsEveryKindOfMark) {
  const KeptMarks marks = {{"A", 0, "x", {Mark::kDone, ""}},
                           {"A", 1, "", {Mark::kNone, "\u20AC\n\u041F"}},
                           {"B", 65535, "\u00FE", {Mark::kNeedsWork, ""}}};
  EXPECT_EQ(ParseMarks(MarksText(marks)), marks);
}

TEST(MarksFileTest, ARemarkThatIsNoUtf8CanBeWritten) {
  const auto parsed = ParseMarks(MarksText({{"A", 0, "", {Mark::kNone, "a\xFF"}}}));
  ASSERT_TRUE(parsed);
  EXPECT_EQ(parsed->front().mark.remark, "a\uFFFD");
}

class BrokenMarksTest : public testing::TestWithParam<std::string> {};

TEST_P(BrokenMarksTest, HoldNothing) { EXPECT_EQ(ParseMarks(GetParam()), std::nullopt); }

std::string With(std::string_view old_part, std::string_view new_part) {
  std::string text = kOneMark;
  return text.replace(text.find(old_part), old_part.size(), new_part);
}

INSTANTIATE_TEST_SUITE_P(
    All, BrokenMarksTest,
    testing::Values("", "{", "[]", "null", "7", "{}", "\xEF\xBB\xBF", std::string(1, '\0'),
                    std::string(200000, '['), R"({"format": "vendlingua-marks", "version": 1})",
                    With("vendlingua-marks", "other"), With("\"version\": 1", "\"version\": 2"),
                    With("needs work", "perhaps"), With("12", "-1"), With("12", "1.5"),
                    With("12", "1e99"), With("12", "\"12\""), With("\"ENGLISH\"", "{}"),
                    With("\"remark\"", "\"note\""), With("ENGLISH", "\xFF"),
                    std::string(kOneMark) + "x", std::string(kOneMark).substr(0, 100)));

TEST(MarksFileTest, ANumberThatNoMessageHasIsKept) {
  EXPECT_EQ(ParseMarks(With("12", "70000"))->front().message, 70000U);
}

class KeptMarksTest : public testing::Test {
 protected:
  fs::path Marks() const { return folder_ / "A.MES.marks"; }

  test::TemporaryFolder folder_;
  const fs::path file_ = folder_ / "A.MES";
};

TEST_F(KeptMarksTest, AreNoneWithoutAFile) { EXPECT_THAT(*ReadMarks(file_), IsEmpty()); }

TEST_F(KeptMarksTest, ComeBack) {
  WriteMarks(file_, {OneMark()});
  EXPECT_THAT(*ReadMarks(file_), ElementsAre(OneMark()));
}

TEST_F(KeptMarksTest, NoMarksNeedNoFile) {
  WriteMarks(file_, {OneMark()});
  WriteMarks(file_, {});
  EXPECT_FALSE(fs::exists(Marks()));
  WriteMarks(file_, {});
}

TEST_F(KeptMarksTest, AFolderInTheirPlaceHoldsNone) {
  fs::create_directory(Marks());
  EXPECT_EQ(ReadMarks(file_), std::nullopt);
  EXPECT_THROW(WriteMarks(file_, {OneMark()}), FileError);
}

TEST_F(KeptMarksTest, ALinkThatLeadsNowhereHoldsNone) {
  SKIP_ON_WINDOWS("links for everybody");
  fs::create_symlink("nowhere", Marks());
  EXPECT_EQ(ReadMarks(file_), std::nullopt);
}

TEST_F(KeptMarksTest, FollowTheNewNameOfTheirLanguage) {
  KeptMark other = OneMark();
  other.language = "DEUTSCH";
  WriteMarks(file_, {OneMark(), other});
  RenameInMarks(file_, "ENGLISH", "BRITISH");
  KeptMark renamed = OneMark();
  renamed.language = "BRITISH";
  EXPECT_THAT(*ReadMarks(file_), ElementsAre(renamed, other));
}

TEST_F(KeptMarksTest, ARenamedLanguageLeavesABrokenFileAlone) {
  folder_.Write("A.MES.marks", "broken");
  RenameInMarks(file_, "ENGLISH", "BRITISH");
  EXPECT_EQ(test::Slurp(Marks()), "broken");
}

TEST_F(KeptMarksTest, GoWithACopyThatHasNone) {
  WriteMarks(file_, {OneMark()});
  CopyMarks(file_, folder_ / "B.MES");
  EXPECT_THAT(*ReadMarks(folder_ / "B.MES"), ElementsAre(OneMark()));
  folder_.Write("C.MES.marks", "its own");
  CopyMarks(file_, folder_ / "C.MES");
  EXPECT_EQ(test::Slurp(folder_ / "C.MES.marks"), "its own");
}

}  // namespace
}  // namespace vendlingua
