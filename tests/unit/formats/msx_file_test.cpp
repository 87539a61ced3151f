#include "core/formats/msx_file.h"

#include <gmock/gmock.h>

#include <string>
#include <string_view>
#include <vector>

#include "core/formats/srecord.h"
#include "core/platform/errors.h"
#include "support/message_files.h"

namespace vendlingua {
namespace {

using test::HexOf;
using test::kMsxHeaderLine;
using test::kMsxLine;
using test::MsxFile;
using test::MsxMessage;
using test::S2Line;
using test::Text;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Optional;
using ::testing::SizeIs;

// Where line `message` of `language` begins in MsxFile().
std::size_t LineOffset(std::size_t language, std::size_t message) {
  return kMsxHeaderLine + ((language - 1) * 455 + message) * kMsxLine;
}

std::string WithoutCr(std::string text) {
  std::erase(text, '\r');
  return text;
}

std::string InLowerCase(std::string text) {
  for (char& c : text) {
    c = c >= 'A' && c <= 'F' ? static_cast<char>(c + 'a' - 'A') : c;
  }
  return text;
}

class MsxFileTest : public ::testing::Test {
 protected:
  MsxFileTest() {
    ApplyDimensions(ParseMesHeader(kMsxConfiguration), set_);
    set_.LangStride = MsxLangStride(set_.MemLength);
    set_.CurrentFileType = kMsxType;
  }

  std::optional<std::vector<std::string>> Names(std::string_view content) {
    return ReadMsxNames(set_, content);
  }

  std::string ReasonAgainstOpening(std::string_view content) {
    try {
      Names(content);
    } catch (const FileError& error) {
      return error.what();
    }
    return "none";
  }

  void Read(std::string_view content, int language) {
    set_.CurrentFileName = "FILE.MSX";
    texts_ = MsxTexts(set_, content, language);
  }

  std::string ReasonAgainstReading(std::string_view content, int language) {
    try {
      Read(content, language);
    } catch (const FileError& error) {
      return error.what();
    }
    return "none";
  }

  std::string Message(std::size_t message) const { return Text(texts_.at(message).First(16)); }

  MessageSet set_;
  MessageTexts texts_;
};

TEST_F(MsxFileTest, HasTheBuiltInDimensions) {
  EXPECT_EQ(set_.LastCol, 15);
  EXPECT_EQ(set_.HeaderBit1, kTrue);
  EXPECT_EQ(set_.HeaderBit0, kTrue);
  EXPECT_EQ(ParseMesHeader(kMsxConfiguration).DisplayType(), 0U);
  EXPECT_EQ(set_.HeaderCount, 171);
  EXPECT_EQ(set_.LastMsg, 454);
  EXPECT_EQ(set_.MemStart, 0x00FF0000U);
  EXPECT_EQ(set_.MemLength, 65520U);
  EXPECT_EQ(set_.LangStride, 455);
  EXPECT_EQ(set_.NameMessage(), 169);
}

TEST_F(MsxFileTest, HasLanguagesOf455LinesBehindOneHeaderLine) {
  EXPECT_EQ(MsxLinesBefore(set_, 1), 1U);
  EXPECT_EQ(MsxLinesBefore(set_, 2), 456U);
  EXPECT_EQ(MsxLinesBefore(set_, 9), 3641U);
}

TEST_F(MsxFileTest, TakesLanguageZeroForTheFirst) { EXPECT_EQ(MsxLinesBefore(set_, 0), 1U); }

TEST_F(MsxFileTest, NamesItsLanguagesInMessage169TrimmedOnBothSides) {
  EXPECT_THAT(Names(MsxFile(3)), Optional(ElementsAre("LANGUAGE 1", "LANGUAGE 2", "LANGUAGE 3")));
}

TEST_F(MsxFileTest, NamesLanguagesInUtf8) {
  std::string content = MsxFile(1);
  content.replace(LineOffset(1, 169), kMsxLine - 2,
                  S2Line(0xFF0A90,
                         "    Fran\xE7"
                         "ais    "));
  EXPECT_THAT(Names(content), Optional(ElementsAre("Français")));
}

TEST_F(MsxFileTest, EndsTheNamesWhereANameRecordLiesBeyondTheEndOfTheFile) {
  const std::string content = MsxFile(3);
  EXPECT_THAT(Names(content.substr(0, LineOffset(3, 169))), Optional(SizeIs(2)));
  EXPECT_THAT(Names(content.substr(0, LineOffset(3, 170))), Optional(SizeIs(3)));
  EXPECT_THAT(Names(content.substr(0, kMsxHeaderLine)), Optional(IsEmpty()));
}

TEST_F(MsxFileTest, NamesNineLanguagesAtMost) {
  EXPECT_THAT(Names(MsxFile(10)), Optional(SizeIs(9)));
}

TEST_F(MsxFileTest, IsManagedForTwoFirmwareModels) {
  EXPECT_NE(Names(MsxFile(1, "0417")), std::nullopt);
  EXPECT_NE(Names(MsxFile(1, "0405")), std::nullopt);
  EXPECT_EQ(Names(MsxFile(1, "0418")), std::nullopt);
  EXPECT_EQ(Names(MsxFile(1, "0267")), std::nullopt);
  EXPECT_EQ(Names(MsxFile(1, "417 ")), std::nullopt);
}

TEST_F(MsxFileTest, GoesByTheModelAloneNotByTheRestOfTheHeader) {
  const std::string lines = MsxFile(1).substr(kMsxHeaderLine);
  EXPECT_NE(Names("S0FFFFFF" + HexOf("XY0417") + "\r\n" + lines), std::nullopt);
}

TEST_F(MsxFileTest, IsNotManagedWithoutAHeaderRecord) {
  EXPECT_EQ(Names(""), std::nullopt);
  EXPECT_EQ(Names("\r\n" + MsxFile(1)), std::nullopt);
  EXPECT_EQ(Names(MsxFile(1).substr(kMsxHeaderLine)), std::nullopt);
}

TEST_F(MsxFileTest, IsNotManagedWithACutHeaderRecord) {
  const std::string header = MsxFile(0);
  for (std::size_t size = 0; size < 20; ++size) {
    EXPECT_EQ(Names(header.substr(0, size)), std::nullopt) << size;
  }
  EXPECT_NE(Names(header.substr(0, 20)), std::nullopt);
}

TEST_F(MsxFileTest, IsNotManagedWithAHeaderThatIsNotHexadecimal) {
  EXPECT_EQ(Names("S01300004D503034313G4141\r\n"), std::nullopt);
}

TEST_F(MsxFileTest, ChecksEveryHeaderRecordOnTheWayToAName) {
  std::string content = MsxFile(2);
  content.replace(LineOffset(2, 5), 20, MsxFile(0, "0418").substr(0, 20));
  EXPECT_EQ(Names(content), std::nullopt);
  content.replace(LineOffset(2, 5), 20, MsxFile(0, "0405").substr(0, 20));
  EXPECT_THAT(Names(content), Optional(SizeIs(2)));
}

TEST_F(MsxFileTest, ChecksHeaderRecordsBehindTheLastLanguageToo) {
  EXPECT_EQ(Names(MsxFile(2) + MsxFile(0, "0418")), std::nullopt);
  EXPECT_THAT(Names(MsxFile(2) + MsxFile(0, "0417")), Optional(SizeIs(2)));
}

TEST_F(MsxFileTest, ChecksNoHeaderRecordBehindTheNinthName) {
  EXPECT_THAT(Names(MsxFile(9) + MsxFile(0, "0418")), Optional(SizeIs(9)));
}

TEST_F(MsxFileTest, NamesThePlaceOfANameThatCannotBeDecoded) {
  std::string content = MsxFile(1);
  content[LineOffset(1, 169) + 12] = 'G';
  EXPECT_THAT(ReasonAgainstOpening(content), HasSubstr("line 171 "));
}

TEST_F(MsxFileTest, IsRefusedWhenItsLinesEndInALoneCr) {
  std::string content = MsxFile(2);
  std::erase(content, '\n');
  EXPECT_THROW(Names(content), FileError);
}

// Its languages could be edited, but never saved.
TEST_F(MsxFileTest, IsRefusedWhenALineEndsInLfAloneNamingTheLine) {
  EXPECT_THAT(ReasonAgainstOpening(WithoutCr(MsxFile(2))), HasSubstr("line 1: ends in LF alone"));
  for (const std::size_t line : {2U, 171U, 456U, 457U, 911U, 4096U}) {
    std::string content = MsxFile(9);
    content.erase(kMsxHeaderLine + (line - 1) * kMsxLine - 2, 1);
    EXPECT_THAT(ReasonAgainstOpening(content),
                HasSubstr("line " + std::to_string(line) + ": ends in LF alone"));
  }
}

TEST_F(MsxFileTest, OfAnotherFirmwareIsNotManagedWhateverItsLineEnds) {
  EXPECT_EQ(Names(WithoutCr(MsxFile(1, "0418"))), std::nullopt);
}

TEST_F(MsxFileTest, MayHaveALastLineWithoutItsEnd) {
  const std::string content = MsxFile(2);
  EXPECT_THAT(Names(content.substr(0, content.size() - 2)), Optional(SizeIs(2)));
}

TEST_F(MsxFileTest, ReadsTheMessagesOfALanguage) {
  Read(MsxFile(3), 2);
  EXPECT_EQ(Message(0), MsxMessage(2, 0));
  EXPECT_EQ(Message(169), "   LANGUAGE 2   ");
  EXPECT_EQ(Message(454), MsxMessage(2, 454));
}

TEST_F(MsxFileTest, ReadsSixteenDataBytesButNotTheChecksum) {
  Read(MsxFile(1), 1);
  EXPECT_EQ(Text(texts_[7].Cells()), "L1 M7" + std::string(35, ' '));
}

TEST_F(MsxFileTest, ReadsEveryCode) {
  const std::string message("\0\x01\x7F\x80\xFE\xFF          ", 16);
  std::string content = MsxFile(1);
  content.replace(LineOffset(1, 0), kMsxLine - 2, S2Line(0xFF0000, message));
  Read(content, 1);
  EXPECT_EQ(Message(0), message);
}

TEST_F(MsxFileTest, ReadsALastLineWithoutItsEnd) {
  const std::string content = MsxFile(1);
  Read(content.substr(0, content.size() - 2), 1);
  EXPECT_EQ(Message(454), MsxMessage(1, 454));
}

TEST_F(MsxFileTest, ReadsLowerCaseDigits) {
  Read(InLowerCase(MsxFile(1)), 1);
  EXPECT_EQ(Message(454), MsxMessage(1, 454));
}

TEST_F(MsxFileTest, NamesTheFirstMissingMessage) {
  EXPECT_THAT(ReasonAgainstReading(MsxFile(2).substr(0, LineOffset(2, 454)), 2),
              HasSubstr("message 454 of language 2 is missing"));
  EXPECT_THAT(ReasonAgainstReading(MsxFile(2), 4), HasSubstr("message 0 of language 4 is missing"));
  EXPECT_THAT(ReasonAgainstReading("", 1), HasSubstr("message 0 of language 1 is missing"));
}

TEST_F(MsxFileTest, NamesTheLineThatHoldsNoMessage) {
  const std::string content = MsxFile(1);
  const std::size_t data = LineOffset(1, 3) + LenientRecord::kDataColumn - 1;
  const auto reason = [&](std::size_t offset, std::size_t count, std::string_view text) {
    return ReasonAgainstReading(std::string(content).replace(offset, count, text), 1);
  };
  EXPECT_THAT(reason(data + 31, 1, "G"), HasSubstr("line 5 ")) << "not hexadecimal";
  EXPECT_THAT(reason(data, 4, ""), HasSubstr("line 5 ")) << "too short";
  EXPECT_THAT(reason(LineOffset(1, 3), kMsxLine - 2, ""), HasSubstr("line 5 ")) << "empty";
}

TEST_F(MsxFileTest, CutAnywhereInsideALanguageIsAnErrorOrWhole) {
  const std::string content = MsxFile(1);
  const std::size_t last_data = LineOffset(1, 454) + 42;  // the checksum may be cut off
  for (std::size_t size = LineOffset(1, 453); size < last_data; ++size) {
    EXPECT_NE(ReasonAgainstReading(content.substr(0, size), 1), "none") << size;
  }
  EXPECT_EQ(ReasonAgainstReading(content.substr(0, last_data), 1), "none");
}

}  // namespace
}  // namespace vendlingua
