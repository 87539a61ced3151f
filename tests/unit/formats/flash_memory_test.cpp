#include "core/formats/flash_memory.h"

#include <gmock/gmock.h>

#include <array>
#include <numeric>
#include <vector>

namespace vendlingua {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Optional;

TEST(FlashMemory, KeepsTheLaterOfTwoBytes) {
  FlashMemory memory;
  memory.Put(7, std::array<std::uint8_t, 2>{1, 2});
  memory.Put(8, std::array<std::uint8_t, 1>{3});
  EXPECT_THAT(memory.At(7), Optional(1));
  EXPECT_THAT(memory.At(8), Optional(3));
}

TEST(FlashMemory, GoesAcrossPages) {
  std::array<std::uint8_t, 255> bytes;
  std::iota(bytes.begin(), bytes.end(), std::uint8_t{0});
  FlashMemory memory;
  memory.Put(200, bytes);
  for (std::uint32_t i = 0; i < bytes.size(); ++i) {
    EXPECT_THAT(memory.At(200 + i), Optional(i));
  }
  EXPECT_EQ(memory.At(199), std::nullopt);
  EXPECT_EQ(memory.At(455), std::nullopt);
}

TEST(FlashMemory, TellsItsRanges) {
  FlashMemory memory;
  EXPECT_THAT(memory.Ranges(), IsEmpty());
  memory.Put(0x1FE, std::vector<std::uint8_t>(0x203));  // a part, two whole pages, and a part
  memory.Put(0x402, std::array<std::uint8_t, 1>{});
  memory.Put(7, std::array<std::uint8_t, 2>{});
  EXPECT_THAT(memory.Ranges(),
              ElementsAre(AddressRange{7, 2}, AddressRange{0x1FE, 0x203}, AddressRange{0x402, 1}));
  memory.Put(0x401, std::array<std::uint8_t, 1>{});
  EXPECT_THAT(memory.Ranges(), ElementsAre(AddressRange{7, 2}, AddressRange{0x1FE, 0x205}));
}

TEST(FlashMemory, RangesReachTheLastAddress) {
  FlashMemory memory;
  memory.Put(FlashMemory::kEnd - 1, std::array<std::uint8_t, 1>{});
  EXPECT_THAT(memory.Ranges(), ElementsAre(AddressRange{0xFFFFFF, 1}));
}

}  // namespace
}  // namespace vendlingua
