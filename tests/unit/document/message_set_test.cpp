#include "core/document/message_set.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cstdint>
#include <type_traits>

#include "core/platform/errors.h"

namespace vendlingua {
namespace {

template <typename Texts>
bool AllBlank(const Texts& texts) {
  return std::all_of(texts.begin(), texts.end(),
                     [](const DisplayText& text) { return text == DisplayText(); });
}

TEST(MessageSet, IsEmptyAtStartUp) {
  const MessageSet set;
  EXPECT_TRUE(set.CurrentFileName.empty());
  EXPECT_EQ(set.CurrentFileType, "");
  EXPECT_EQ(set.Modified, kFalse);
  EXPECT_EQ(set.DestLang, 0);
  EXPECT_TRUE(AllBlank(set.OriginText));
  EXPECT_TRUE(AllBlank(set.DestText));
}

TEST(MessageSet, HasRoomForTheMessagesOfEveryFile) {
  const MessageSet set;
  EXPECT_EQ(set.DestText.size(), 513U);
  EXPECT_GE(set.OriginText.size(), 513U);
  EXPECT_EQ(set.DefaultMessages.size(), 455U);
}

TEST(MessageSet, HasFieldsOfExactWidths) {
  static_assert(std::is_same_v<decltype(MessageSet::LangCount), std::uint8_t>);
  static_assert(std::is_same_v<decltype(MessageSet::LastCol), std::uint8_t>);
  static_assert(std::is_same_v<decltype(MessageSet::DestLang), std::uint8_t>);
  static_assert(std::is_same_v<decltype(MessageSet::HeaderCount), std::uint16_t>);
  static_assert(std::is_same_v<decltype(MessageSet::LastMsg), std::uint16_t>);
  static_assert(std::is_same_v<decltype(MessageSet::LangStride), std::uint16_t>);
  static_assert(std::is_same_v<decltype(MessageSet::MemStart), std::uint32_t>);
  static_assert(std::is_same_v<decltype(MessageSet::MemLength), std::uint32_t>);
  static_assert(std::is_same_v<decltype(MessageSet::BlockLength), float>);
}

TEST(MessageSet, StoresBooleansAsSixteenBits) {
  static_assert(sizeof(MessageSet::HeaderBit0) == 2 && sizeof(MessageSet::Modified) == 2);
  EXPECT_EQ(ToBoolean16(false), 0);
  EXPECT_EQ(ToBoolean16(true), 65535);
}

TEST(MessageSet, IsOneCellWiderAndOneMessageLongerThanItsLastIndices) {
  MessageSet set;
  set.LastCol = 255;
  set.LastMsg = 65535;
  EXPECT_EQ(set.Width(), 256U);
  EXPECT_EQ(set.MessageCount(), 65536U);
}

TEST(MessageSet, FindsTheLanguageNameByHeaderCount) {
  MessageSet set;
  set.HeaderCount = 171;
  set.CurrentFileType = ".MES";
  EXPECT_EQ(set.NameMessage(), 171);
  set.CurrentFileType = ".MSX";
  EXPECT_EQ(set.NameMessage(), 169);
}

TEST(MessageSet, KnowsTwoFileTypes) {
  MessageSet set;
  set.CurrentFileType = ".MES";
  EXPECT_TRUE(set.IsMes() && !set.IsMsx());
  set.CurrentFileType = ".MSX";
  EXPECT_TRUE(set.IsMsx() && !set.IsMes());
  set.CurrentFileType = ".MSX.MES";
  EXPECT_FALSE(set.IsMes() || set.IsMsx());
}

TEST(MessageSet, HasNoFileAfterItWasClosed) {
  MessageSet set;
  set.CurrentFileName = "FW0417AB.MES";
  set.CurrentFileType = ".MES";
  set.CloseFile();
  EXPECT_TRUE(set.CurrentFileName.empty());
  EXPECT_FALSE(set.IsMes() || set.IsMsx());
}

TEST(MesLangStride, DividesTheMemoryByLanguagesAndThenByWidth) {
  EXPECT_EQ(MesLangStride(65520, 9, 16), 455);
  EXPECT_EQ(MesLangStride(0x8000, 4, 16), 512);
  EXPECT_EQ(MesLangStride(100, 3, 16), 2);
  EXPECT_EQ(MesLangStride(15, 1, 16), 0);
}

TEST(MesLangStride, RefusesASetWithoutLanguages) {
  EXPECT_THROW(MesLangStride(0x2000, 0, 16), Error);
}

TEST(MesLangStride, RefusesMessagesWithoutWidth) {
  EXPECT_THROW(MesLangStride(0x2000, 1, 0), Error);
}

TEST(MesLangStride, RefusesWhatDoesNotFitSixteenBits) {
  EXPECT_EQ(MesLangStride(65535, 1, 1), 65535);
  EXPECT_THROW(MesLangStride(65536, 1, 1), Error);
  EXPECT_THROW(MesLangStride(0x7FFFFFFF, 1, 1), Error);
}

TEST(MsxLangStride, SplitsTheMemoryIntoNineSlotsOfSixteenByteRecords) {
  EXPECT_EQ(MsxLangStride(0xFFF0), 455);
  EXPECT_EQ(MsxLangStride(0x6000), 170);
}

TEST(MesBlockLength, CountsTheNameAndOneSlotMoreThanTheStride) {
  EXPECT_EQ(MesBlockLength(15, 455), 7316.0F);
  EXPECT_EQ(MesBlockLength(3, 3), 36.0F);
}

TEST(MesBlockLength, WrapsInSignedSixteenBitArithmetic) {
  EXPECT_EQ(MesBlockLength(0, 32746), 32767.0F);
  EXPECT_EQ(MesBlockLength(0, 32747), -32768.0F);
  EXPECT_EQ(MesBlockLength(15, 2047), -32748.0F);  // 16 x 2048 + 20 = 32788
  EXPECT_EQ(MesBlockLength(15, 4095), 20.0F);      // 16 x 4096 + 20 = 65556
  EXPECT_EQ(MesBlockLength(0, 65535), 20.0F);      // 65536 + 20
}

}  // namespace
}  // namespace vendlingua
