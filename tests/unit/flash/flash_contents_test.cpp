#include "core/flash/flash_contents.h"

#include <gmock/gmock.h>

#include <string>

#include "support/message_files.h"

namespace vendlingua {
namespace {

using test::Codes;
using test::S2Line;
using test::Text;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

std::string IdentificationIn(const std::string& content) {
  const auto found = Identification(ParseFlashFile(content));
  return found ? Text(*found) : "none";
}

TEST(Identification, IsThatOfTheHeaderOfACopy) {
  // 98 + 30 + 32 + 36 + 37 + 41 + 41 = 1E9
  const std::string copy = "S013000044543032363741412020202020202020E9\r\n";
  EXPECT_EQ(IdentificationIn(copy + S2Line(0x8000, "    MP0417AB    ")), "0267AA");
  EXPECT_TRUE(IsIdentifiedCopy(ParseFlashFile(copy)));
}

TEST(Identification, IsThatOfTheFirstMessageWithoutAHeader) {
  const std::string record = S2Line(0xFF0000, "    MP0417AB    ");
  EXPECT_EQ(IdentificationIn(record), "0417AB");
  EXPECT_FALSE(IsIdentifiedCopy(ParseFlashFile(record)));
}

TEST(Identification, IsNoneWithoutAModelAndItsVersion) {
  EXPECT_EQ(IdentificationIn(""), "none");
  EXPECT_EQ(IdentificationIn(S2Line(0xFF0000, "Prezzo          ")), "none");
  EXPECT_EQ(IdentificationIn(S2Line(0xFF0000, "Prezzo P0417AB  ")), "none");
  EXPECT_EQ(IdentificationIn(S2Line(0xFF0000, "         P0417A ")), "0417A ");
  EXPECT_EQ(IdentificationIn(S2Line(0xFF0000, "           P0417")), "none");
}

TEST(GapsBetween, AreWhatRangesLeave) {
  EXPECT_THAT(GapsBetween({{7, 2}, {10, 1}, {256, 4}}),
              ElementsAre(AddressRange{9, 1}, AddressRange{11, 245}));
  EXPECT_THAT(GapsBetween({{7, 2}}), IsEmpty());
  EXPECT_THAT(GapsBetween({}), IsEmpty());
}

TEST(KnownDimensions, AreThoseOfAFirmwareWhoseMemoryIsKnown) {
  const auto set = KnownDimensions(ParseFlashFile(S2Line(0xFF0000, "    MP0405AB    ")));
  ASSERT_TRUE(set);
  EXPECT_EQ(set->SlotCount(), 9U);
  EXPECT_EQ(set->MemStart, 0xFF0000U);
  EXPECT_EQ(set->SlotLength(), 7280U);
}

TEST(KnownDimensions, AreNoneForAnotherFirmwareOrMemory) {
  const auto known = [](const std::string& content) {
    return KnownDimensions(ParseFlashFile(content)).has_value();
  };
  const std::string name = "    MP0417AB    ";
  EXPECT_TRUE(known(S2Line(0xFF0000, name) + "\n" + S2Line(0xFFFFE0, name)));
  EXPECT_FALSE(known(S2Line(0xFF0000, name) + "\n" + S2Line(0xFFFFE1, name)));
  EXPECT_FALSE(known(S2Line(0xFF8000, name)));
  EXPECT_FALSE(known(S2Line(0xFF0000, name) + "\n" + S2Line(0xFEFFF0, name)));
  EXPECT_FALSE(known(S2Line(0xFF0000, "    MP0267AB    ")));
  EXPECT_FALSE(known(""));
}

// Two slots of four messages of four cells at 6000; message 1 names the language.
MessageSet BoardWithNames(Boolean16 names_itself) {
  MessageSet set;
  set.CurrentFileType = kMesType;
  set.LangCount = 2;
  set.LastCol = 3;
  set.LastMsg = 3;
  set.HeaderCount = 1;
  set.HeaderBit0 = names_itself;
  set.MemStart = 0x6000;
  set.MemLength = 32;
  return set;
}

FlashMemory ImageAt(std::uint32_t address, const std::string& bytes) {
  FlashMemory memory;
  memory.Put(address, Codes(bytes));
  return memory;
}

TEST(SlotsOf, HaveTheNamesThatTheFirmwareLists) {
  const auto slots =
      SlotsOf(ImageAt(0x6000, "aaaa ITAbbbbccccddddENG eeeeffff"), BoardWithNames(kTrue));
  ASSERT_THAT(slots, SizeIs(2));
  EXPECT_EQ(slots[0].address, 0x6000U);
  EXPECT_EQ(slots[0].length, 16U);
  EXPECT_TRUE(slots[0].is_held);
  EXPECT_EQ(Text(slots[0].name), "ITA");
  EXPECT_EQ(slots[1].address, 0x6010U);
  EXPECT_EQ(Text(slots[1].name), "ENG");
}

TEST(SlotsOf, HaveTheNamesThatTheCompilerListed) {
  const auto slots =
      SlotsOf(ImageAt(0x6000, "aaaaITA ENG ccccddddITA ENG ffff"), BoardWithNames(kFalse));
  ASSERT_THAT(slots, SizeIs(2));
  EXPECT_EQ(Text(slots[0].name), "ITA");
  EXPECT_EQ(Text(slots[1].name), "ENG");
}

TEST(SlotsOf, HaveNoNameThatTheFileLacks) {
  const auto slots = SlotsOf(ImageAt(0x6000, "aaaaITA"), BoardWithNames(kTrue));
  ASSERT_THAT(slots, SizeIs(2));
  EXPECT_TRUE(slots[0].is_held);
  EXPECT_THAT(slots[0].name, IsEmpty());
  EXPECT_FALSE(slots[1].is_held);
  EXPECT_THAT(slots[1].name, IsEmpty());
  const std::string lacking = "aaaa" + std::string(12, '\0');
  EXPECT_THAT(SlotsOf(ImageAt(0x6000, lacking), BoardWithNames(kTrue))[0].name, IsEmpty());
}

TEST(SlotsOf, HaveNoNameWhereItsMessageIsNotInTheSlot) {
  MessageSet board = BoardWithNames(kTrue);
  board.HeaderCount = 4;
  EXPECT_THAT(SlotsOf(ImageAt(0x6000, std::string(32, 'a')), board)[0].name, IsEmpty());
}

TEST(SlotsOf, EndWhereAddressesDo) {
  MessageSet board = BoardWithNames(kTrue);
  board.MemStart = 0xFFFFF0;
  EXPECT_THAT(SlotsOf({}, board), SizeIs(1));
  board.MemStart = 0xFFFFFFFF;
  EXPECT_THAT(SlotsOf({}, board), IsEmpty());
}

}  // namespace
}  // namespace vendlingua
