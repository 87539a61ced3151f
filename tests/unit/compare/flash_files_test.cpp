#include "core/compare/flash_files.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "core/compare/most_differences.h"

namespace vendlingua {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

// A board of two slots of three messages of four cells, of which the last is not used.
MessageSet SmallBoard() {
  MessageSet set;
  set.CurrentFileType = kMesType;
  set.LangCount = 2;
  set.LastCol = 3;
  set.LastMsg = 1;
  set.MemStart = 0x1000;
  set.MemLength = 24;
  return set;
}

FlashMemory MemoryWith(std::uint32_t address, const std::string& bytes) {
  FlashMemory memory;
  memory.Put(address, DisplayCodes(bytes.begin(), bytes.end()));
  return memory;
}

std::vector<std::string> RunsOf(const FlashComparison& comparison) {
  std::vector<std::string> runs;
  for (const ByteDifference& run : comparison.bytes) {
    std::string text = std::to_string(run.address) + "+" + std::to_string(run.length);
    text += run.place.slot ? " slot " + std::to_string(*run.place.slot) : "";
    text += run.place.message ? " message " + std::to_string(*run.place.message) : "";
    runs.push_back(text);
  }
  return runs;
}

TEST(CompareFlash, FindsNoDifferenceInTheSameBytes) {
  const FlashComparison comparison = CompareFlash(MemoryWith(7, "abc"), MemoryWith(7, "abc"));
  EXPECT_TRUE(comparison.Same());
  EXPECT_THAT(comparison.bytes, IsEmpty());
  EXPECT_TRUE(CompareFlash({}, {}).Same());
}

TEST(CompareFlash, PutsNeighboursTogether) {
  const FlashComparison comparison =
      CompareFlash(MemoryWith(7, "abcdefg"), MemoryWith(7, "aXXdefX"));
  EXPECT_FALSE(comparison.Same());
  EXPECT_THAT(RunsOf(comparison), ElementsAre("8+2", "13+1"));
}

TEST(CompareFlash, PutsNeighboursTogetherAcrossPages) {
  EXPECT_THAT(RunsOf(CompareFlash(MemoryWith(250, std::string(12, 'a')),
                                  MemoryWith(250, std::string(12, 'b')))),
              ElementsAre("250+12"));
}

TEST(CompareFlash, TakesBytesOfOneFileAloneForADifference) {
  EXPECT_THAT(RunsOf(CompareFlash(MemoryWith(7, "abc"), MemoryWith(7, "a"))), ElementsAre("8+2"));
  EXPECT_THAT(RunsOf(CompareFlash(MemoryWith(0, "a"), MemoryWith(600, "a"))),
              ElementsAre("0+1", "600+1"));
  // Also where they are 0, which is what a gap is not.
  EXPECT_THAT(RunsOf(CompareFlash(MemoryWith(7, std::string(1, '\0')), {})), ElementsAre("7+1"));
}

TEST(CompareFlash, EndsARunWithItsMessage) {
  const MessageSet board = SmallBoard();
  const auto runs = RunsOf(CompareFlash(MemoryWith(0x0FFF, std::string(26, 'a')),
                                        MemoryWith(0x0FFF, std::string(26, 'b')), &board));
  EXPECT_THAT(runs, ElementsAre("4095+1", "4096+4 slot 0 message 0", "4100+4 slot 0 message 1",
                                "4104+4 slot 0", "4108+4 slot 1 message 0",
                                "4112+4 slot 1 message 1", "4116+4 slot 1", "4120+1"));
}

TEST(CompareFlash, CountsWhatItDoesNotList) {
  std::string a(2 * kMostDifferences + 6, 'a');
  std::string b = a;
  for (std::size_t i = 0; i < b.size(); i += 2) {
    b[i] = 'b';
  }
  const FlashComparison comparison = CompareFlash(MemoryWith(0, a), MemoryWith(0, b));
  EXPECT_THAT(comparison.bytes, SizeIs(kMostDifferences));
  EXPECT_EQ(comparison.unlisted, 3U);
}

}  // namespace
}  // namespace vendlingua
