#include "core/formats/mes_file.h"

#include <gmock/gmock.h>

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/platform/errors.h"
#include "support/message_files.h"

namespace vendlingua {
namespace {

using test::MesFile;
using test::Text;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::SizeIs;

// LangCount 9, LastCol 15, all flags, HeaderCount 171, LastMsg 454, MemStart 0xFF0000, MemLength
// 0xFFF0.
constexpr std::string_view kHeader =
    "\x09\x0F"
    "0F00AB01C600FF0000FFF0";

std::string With(std::string_view header, std::size_t offset, std::string_view field) {
  return std::string(header).replace(offset, field.size(), field);
}

std::string ReasonAgainst(std::string_view header) {
  try {
    ParseMesHeader(header);
  } catch (const Error& error) {
    return error.what();
  }
  return "none";
}

MessageSet SetOf(const MesFile& file) {
  MessageSet set;
  ApplyMesHeader(ParseMesHeader(file.Bytes()), set);
  return set;
}

TEST(MesHeader, IsDecodedFieldByField) {
  const MesHeader header = ParseMesHeader(kHeader);
  EXPECT_EQ(header.lang_count, 9);
  EXPECT_EQ(header.last_col, 15);
  EXPECT_EQ(header.flags, 15);
  EXPECT_EQ(header.header_count, 171);
  EXPECT_EQ(header.last_msg, 454);
  EXPECT_EQ(header.mem_start, 0xFF0000U);
  EXPECT_EQ(header.mem_length, 0xFFF0U);
}

TEST(MesHeader, TakesCountAndWidthAsRawBytes) {
  const MesHeader header = ParseMesHeader(With(kHeader, 0, "\xFF\x80"));
  EXPECT_EQ(header.lang_count, 255);
  EXPECT_EQ(header.last_col, 128);
}

TEST(MesHeader, ReadsTheLargestFieldsUnsigned) {
  const MesHeader header = ParseMesHeader("\x01\x0F" + std::string(22, 'F'));
  EXPECT_EQ(header.header_count, 65535);
  EXPECT_EQ(header.last_msg, 65535);
  EXPECT_EQ(header.mem_start, 4294967295U);
  EXPECT_EQ(header.mem_length, 65535U);
}

TEST(MesHeader, TakesLowerCaseDigits) {
  EXPECT_EQ(ParseMesHeader(With(kHeader, 4, "00ab01c600ff0000fff0")).mem_length, 0xFFF0U);
}

TEST(MesHeader, KeepsTheDisplayTypeInBitsTwoAndThreeOfTheFlags) {
  const auto display_type = [](std::string_view flags) {
    return ParseMesHeader(With(kHeader, 2, flags)).DisplayType();
  };
  EXPECT_EQ(display_type("00"), 0U);
  EXPECT_EQ(display_type("04"), 1U);
  EXPECT_EQ(display_type("0B"), 2U);
  EXPECT_EQ(display_type("0F"), 3U);
  EXPECT_EQ(display_type("F3"), 0U);
}

TEST(MesHeader, IsRefusedWithFewerThanTwentyFourBytes) {
  for (std::size_t size = 0; size < kHeader.size(); ++size) {
    EXPECT_THAT(ReasonAgainst(kHeader.substr(0, size)), HasSubstr(std::to_string(size) + " bytes"));
  }
  EXPECT_EQ(ReasonAgainst(kHeader), "none");
}

TEST(MesHeader, IsRefusedWithAFieldThatIsNotHexadecimal) {
  const std::vector<std::pair<std::size_t, std::string>> fields = {
      {2, "0G"}, {4, "00 B"}, {8, "-1C6"}, {12, "00FF000\n"}, {20, "&HF0"}};
  for (const auto& [offset, field] : fields) {
    const std::string reason = ReasonAgainst(With(kHeader, offset, field));
    EXPECT_THAT(reason, HasSubstr("position " + std::to_string(offset + 1)));
    EXPECT_THAT(reason, HasSubstr("\"" + field + "\""));
  }
}

TEST(ApplyMesHeader, SetsBothHeaderBooleansByTheFlags) {
  MessageSet set;
  ApplyMesHeader(ParseMesHeader(With(kHeader, 2, "0F")), set);
  EXPECT_EQ(set.HeaderBit1, 65535);
  EXPECT_EQ(set.HeaderBit0, 65535);
  ApplyMesHeader(ParseMesHeader(With(kHeader, 2, "02")), set);
  EXPECT_EQ(set.HeaderBit1, 65535);
  EXPECT_EQ(set.HeaderBit0, 0);
  ApplyMesHeader(ParseMesHeader(With(kHeader, 2, "01")), set);
  EXPECT_EQ(set.HeaderBit1, 0);
  EXPECT_EQ(set.HeaderBit0, 65535);
}

TEST(ApplyMesHeader, TakesAndComputesTheDimensions) {
  MessageSet set;
  ApplyMesHeader(ParseMesHeader(kHeader), set);
  EXPECT_EQ(set.LangCount, 9);
  EXPECT_EQ(set.LastCol, 15);
  EXPECT_EQ(set.HeaderCount, 171);
  EXPECT_EQ(set.LastMsg, 454);
  EXPECT_EQ(set.MemStart, 0xFF0000U);
  EXPECT_EQ(set.MemLength, 65520U);
  EXPECT_EQ(set.LangStride, 455);
  EXPECT_EQ(set.BlockLength, 7316.0F);
}

TEST(ApplyMesHeader, RefusesLangCountZero) {
  MessageSet set;
  const MesHeader header = ParseMesHeader(With(kHeader, 0, std::string_view("\0", 1)));
  EXPECT_THROW(ApplyMesHeader(header, set), Error);
}

TEST(ApplyMesHeader, TakesTheWidestAndTheLongestSet) {
  MessageSet set;
  ApplyMesHeader(ParseMesHeader(With(kHeader, 1, "\xFF")), set);
  EXPECT_EQ(set.Width(), 256U);
}

TEST(ApplyMesHeader, TakesMoreThan513MessagesWhereABlockHoldsThem) {
  MessageSet set;
  const std::string header = With(With(kHeader, 0, "\x01"), 1, std::string_view("\0", 1));
  ApplyMesHeader(ParseMesHeader(With(With(header, 20, "FFFF"), 8, "FFFF")), set);
  EXPECT_EQ(set.MessageCount(), 65536U);
  EXPECT_THROW(ApplyMesHeader(ParseMesHeader(With(With(header, 20, "0201"), 8, "0202")), set),
               Error);
  EXPECT_NO_THROW(ApplyMesHeader(ParseMesHeader(With(With(header, 20, "0000"), 8, "0200")), set));
}

TEST(FormatMesHeader, LaysTheFieldsOut) {
  MessageSet set;
  ApplyMesHeader(ParseMesHeader(kHeader), set);
  EXPECT_EQ(FormatMesHeader(set, 15), kHeader);
  EXPECT_EQ(FormatMesHeader(set, 0), With(kHeader, 2, "00"));
}

TEST(FormatMesHeader, WritesOnlyTheLowSixteenBitsOfMemLength) {
  MessageSet set;
  ApplyMesHeader(ParseMesHeader(kHeader), set);
  set.MemLength = 0x12345;
  EXPECT_EQ(FormatMesHeader(set, 15), With(kHeader, 20, "2345"));
}

TEST(MesNames, FollowOneAnotherToTheEndOfTheFile) {
  const MesFile file{.names = {"Default", "ITALIANO", "ENGLISH"}};
  EXPECT_THAT(ReadMesNames(SetOf(file), file.Bytes()),
              ElementsAre("Default", "ITALIANO", "ENGLISH"));
}

TEST(MesNames, AreTrimmedOnTheRightOnly) {
  const MesFile file{.names = {"  Default  "}};
  EXPECT_THAT(ReadMesNames(SetOf(file), file.Bytes()), ElementsAre("  Default"));
}

TEST(MesNames, EndWhereFewerThanTwentyBytesAreLeft) {
  const MesFile file;
  const std::string bytes = file.Bytes();
  const std::size_t second_name = 60;
  EXPECT_THAT(ReadMesNames(SetOf(file), bytes.substr(0, second_name + 19)), SizeIs(1));
  EXPECT_THAT(ReadMesNames(SetOf(file), bytes.substr(0, second_name + 20)), SizeIs(2));
}

TEST(MesNames, AreNotReadBeyondEntry100) {
  MesFile file;
  file.names.assign(103, "X");
  EXPECT_THAT(ReadMesNames(SetOf(file), file.Bytes()), SizeIs(101));
}

// A block length that wraps to a positive value is taken as it is, wherever that leads.
TEST(MesNames, AreReadAtTheWrappedBlockLength) {
  const MesFile file;
  MessageSet set = SetOf(file);
  set.BlockLength = 20;
  EXPECT_THAT(ReadMesNames(set, file.Bytes().substr(0, 64)),
              ElementsAre("Default", "000001110222....ITAL"));
}

TEST(MesNames, AreAnErrorBeforeTheStartOfTheFile) {
  const MesFile file;
  MessageSet set = SetOf(file);
  set.BlockLength = -32748;
  EXPECT_THROW(ReadMesNames(set, file.Bytes()), Error);
}

class MesTexts : public ::testing::Test {
 protected:
  void Read(std::string_view bytes, int language) {
    set_ = SetOf(file_);
    texts_ = vendlingua::MesTexts(set_, bytes, language);
  }

  std::string Message(std::size_t message) const { return Text(texts_.at(message).First(4)); }

  MesFile file_;
  MessageSet set_;
  MessageTexts texts_;
};

TEST_F(MesTexts, AreThoseOfTheLanguagesBlock) {
  Read(file_.Bytes(), 1);
  EXPECT_EQ(Message(0), "1000");
  EXPECT_EQ(Message(1), "1111");
  EXPECT_EQ(Message(2), "1222");
}

TEST_F(MesTexts, BeginAtPosition45) {
  std::string bytes = file_.Bytes();
  bytes.replace(45 - 1, 4, "ABCD");
  Read(bytes, 0);
  EXPECT_EQ(Message(0), "ABCD");
}

TEST_F(MesTexts, StandLeftAlignedInFortyCells) {
  Read(file_.Bytes(), 1);
  EXPECT_EQ(Text(texts_[2].Cells()), "1222" + std::string(36, ' '));
}

TEST_F(MesTexts, EndWithLastMsg) {
  Read(file_.Bytes(), 1);
  EXPECT_EQ(texts_.size(), 3U);
}

TEST_F(MesTexts, KeepEveryCode) {
  std::string bytes = file_.Bytes();
  const std::string message("\0\xFE\r\n", 4);
  bytes.replace(44, 4, message);
  Read(bytes, 0);
  EXPECT_EQ(Message(0), message);
}

TEST_F(MesTexts, AreBlankForALanguageBehindTheEndOfTheFile) {
  Read(file_.Bytes(), 101);
  EXPECT_EQ(Message(0), "    ");
  EXPECT_EQ(Message(2), "    ");
}

// The last block ends with the last message that was saved into it.
TEST_F(MesTexts, AreBlankBehindAShortLastBlock) {
  Read(file_.Bytes().substr(0, 60 + 20 + 2 * 4), 1);
  EXPECT_EQ(Message(1), "1111");
  EXPECT_EQ(Message(2), "    ");
}

// A save that was interrupted, by another program or an older one, ends anywhere.
TEST_F(MesTexts, AreBlankBehindTheByteWhereTheFileEnds) {
  const std::vector<std::string> expected = {"    ", "1   ", "11  ", "111 ", "1111"};
  for (std::size_t bytes = 0; bytes < expected.size(); ++bytes) {
    Read(file_.Bytes().substr(0, 60 + 20 + 4 + bytes), 1);
    EXPECT_EQ(Message(0), "1000");
    EXPECT_EQ(Message(1), expected[bytes]) << bytes;
    EXPECT_EQ(Message(2), "    ");
  }
}

}  // namespace
}  // namespace vendlingua
