#include "core/formats/msx_lines.h"

#include <gmock/gmock.h>

#include <string>
#include <string_view>

#include "core/formats/msx_file.h"
#include "core/platform/errors.h"
#include "support/message_files.h"
#include "support/same_bytes.h"

namespace vendlingua {
namespace {

using test::Codes;
using test::kMsxHeaderLine;
using test::kMsxLine;
using test::MsxFile;
using test::MsxMessage;
using test::S2Line;
using test::SameBytes;
using ::testing::HasSubstr;

const std::string kSixteenA(16, 'A');

class MsxLinesTest : public ::testing::Test {
 protected:
  MsxLinesTest() {
    ApplyDimensions(ParseMesHeader(kMsxConfiguration), set_);
    set_.LangStride = MsxLangStride(set_.MemLength);
    set_.CurrentFileType = kMsxType;
    set_.DestLang = 1;
    for (std::size_t message = 0; message < 455; ++message) {
      set_.DestText[message] = DisplayText(Codes(MsxMessage(1, message)));
    }
  }

  // The new first line when the old one is `line`.
  std::string Rewritten(std::string_view line) {
    std::string content = MsxFile(1);
    content.replace(kMsxHeaderLine, kMsxLine - 2, line);
    const std::string lines = BuildMsxLines(set_, content).bytes;
    return lines.substr(0, lines.find('\r'));
  }

  std::string ReasonAgainst(std::string_view content) {
    try {
      BuildMsxLines(set_, content);
    } catch (const FileError& error) {
      return error.what();
    }
    return "none";
  }

  MessageSet set_;
};

TEST_F(MsxLinesTest, AreTheOldOnesWhenNothingChanged) {
  const FilePatch lines = BuildMsxLines(set_, MsxFile(1));
  EXPECT_EQ(lines.position, static_cast<std::int64_t>(kMsxHeaderLine));
  EXPECT_TRUE(SameBytes(lines.bytes, MsxFile(1).substr(kMsxHeaderLine)));
}

TEST_F(MsxLinesTest, CarryTheChecksumOverCountAddressAndData) {
  set_.DestText[0] = DisplayText(Codes(kSixteenA));
  EXPECT_EQ(Rewritten(S2Line(0xFF8000, "old text old tex")),
            "S214FF8000414141414141414141414141414141415C");
}

TEST_F(MsxLinesTest, CarryOneDigitValuesWithALeadingZero) {
  set_.DestText[0] = DisplayText(Codes(std::string("\0\x05\x0F", 3) + std::string(13, '\xFF')));
  EXPECT_EQ(Rewritten(S2Line(0xFF0000, kSixteenA)),
            "S214FF000000050F" + std::string(26, 'F') + "E5");
}

TEST_F(MsxLinesTest, KeepTheHeadAsFound) {
  set_.DestText[0] = DisplayText(Codes(kSixteenA));
  EXPECT_EQ(Rewritten("S215FF0000" + std::string(34, '0')),
            "S215FF000041414141414141414141414141414141DB");
  EXPECT_EQ(Rewritten("s314ff8000" + std::string(34, '0')),
            "s314ff8000414141414141414141414141414141415C");
}

TEST_F(MsxLinesTest, DoNotLookAtTheLengthOfTheOldData) {
  set_.DestText[0] = DisplayText(Codes(kSixteenA));
  const std::string line = "S214FF8000414141414141414141414141414141415C";
  EXPECT_EQ(Rewritten("S214FF8000"), line);
  EXPECT_EQ(Rewritten("S214FF8000" + std::string(200, '7')), line);
}

TEST_F(MsxLinesTest, AreAlways455) {
  set_.LastMsg = 3;
  EXPECT_TRUE(SameBytes(BuildMsxLines(set_, MsxFile(2)).bytes, MsxFile(1).substr(kMsxHeaderLine)));
}

TEST_F(MsxLinesTest, AreAsWideAsTheSet) {
  set_.LastCol = 3;
  set_.DestText[0] = DisplayText(Codes("AAAABBBB"));
  // 0x14 + 0xFF + 0x80 + 4 x 0x41 = 0x297
  EXPECT_EQ(Rewritten(S2Line(0xFF8000, kSixteenA)), "S214FF80004141414168");
}

TEST_F(MsxLinesTest, ReplaceTheRunOfTheDestinationLanguage) {
  set_.DestLang = 3;
  const FilePatch lines = BuildMsxLines(set_, MsxFile(3));
  EXPECT_EQ(lines.position, static_cast<std::int64_t>(kMsxHeaderLine + 910 * kMsxLine));
  EXPECT_THAT(lines.bytes, testing::StartsWith(S2Line(0xFF0000 + 910 * 16, MsxMessage(1, 0))));
}

TEST_F(MsxLinesTest, ReplaceTheFirstLanguageForDestLangZero) {
  set_.DestLang = 0;
  EXPECT_EQ(BuildMsxLines(set_, MsxFile(2)).position, static_cast<std::int64_t>(kMsxHeaderLine));
}

TEST_F(MsxLinesTest, AreRefusedForALanguagePartlyBehindTheEndOfTheFile) {
  set_.DestLang = 2;
  const std::string content = MsxFile(2);
  EXPECT_THAT(ReasonAgainst(content.substr(0, content.size() - kMsxLine)),
              HasSubstr("ends after line 910"));
  EXPECT_THAT(ReasonAgainst(MsxFile(1)), HasSubstr("ends after line 456"));
  EXPECT_THAT(ReasonAgainst(""), HasSubstr("ends after line 0"));
}

TEST_F(MsxLinesTest, AreRefusedUnlessAllOldOnesEndInCrLf) {
  std::string content = MsxFile(2);
  content.erase(kMsxHeaderLine + 455 * kMsxLine - 2, 1);
  EXPECT_THAT(ReasonAgainst(content), HasSubstr("line 456 does not end in CR LF"));
}

TEST_F(MsxLinesTest, GetTheLineEndThatTheLastLineOfTheFileHasNot) {
  const std::string whole = MsxFile(1);
  for (const std::size_t missing : {1U, 2U}) {
    EXPECT_TRUE(SameBytes(BuildMsxLines(set_, whole.substr(0, whole.size() - missing)).bytes,
                          whole.substr(kMsxHeaderLine)));
  }
}

TEST_F(MsxLinesTest, DoNotMindTheLineEndsOfOtherLanguages) {
  set_.DestLang = 2;
  std::string content = MsxFile(3);
  content.erase(kMsxHeaderLine + 910 * kMsxLine + kMsxLine - 2, 1);  // in language 3
  content.erase(kMsxHeaderLine + kMsxLine - 2, 1);                   // in language 1
  const FilePatch lines = BuildMsxLines(set_, content);
  EXPECT_EQ(lines.position, static_cast<std::int64_t>(kMsxHeaderLine + 455 * kMsxLine - 1));
}

TEST_F(MsxLinesTest, AreRefusedWithoutAHeadToKeep) {
  EXPECT_THAT(ReasonAgainst(MsxFile(1).replace(kMsxHeaderLine, kMsxLine - 2, "")),
              HasSubstr("line 2, column 3"));
  EXPECT_THAT(ReasonAgainst(MsxFile(1).replace(kMsxHeaderLine, kMsxLine - 2, "S214FF800")),
              HasSubstr("line 2, column 9"));
  EXPECT_THAT(ReasonAgainst(MsxFile(1).replace(kMsxHeaderLine + kMsxLine, 10, "S214FX8000")),
              HasSubstr("line 3, column 5"));
}

}  // namespace
}  // namespace vendlingua
