#include <gmock/gmock.h>

#include "core/flash/section_files.h"
#include "core/platform/path_of.h"

namespace vendlingua {
namespace {

using testing::ElementsAre;

TEST(SectionUse, FindsTheSectionOfAnAddress) {
  SectionFiles sections;
  sections.NoteSectionUse(1, 0x0000);
  sections.NoteSectionUse(1, 0x8001);
  sections.NoteSectionUse(1, 0xA002);
  sections.NoteSectionUse(1, 0xBC03);
  sections.NoteSectionUse(1, 0xBE04);
  EXPECT_THAT(sections.SectionUsed(), ElementsAre(1, 2, 3, 4, 5, 0));
}

// Each note by hand: address and count are added in 32 bits, nothing wraps.
TEST(SectionUse, TakesNegativeCounts) {
  SectionFiles sections;
  sections.NoteSectionUse(-4, 0x0000);  // -4 is not more than 0
  sections.NoteSectionUse(-1, 0x8000);
  sections.NoteSectionUse(-32768, 0x7FFF);  // -1
  EXPECT_THAT(sections.SectionUsed(), ElementsAre(0, 0, 0, 0, 0, 0));
  sections.NoteSectionUse(-4, 0x7FFF);  // 7FFB
  sections.NoteSectionUse(-1, 0x8001);  // 0
  sections.NoteSectionUse(-2, 0xA003);  // 1
  sections.NoteSectionUse(-3, 0xBDFF);  // 1FF - 3
  sections.NoteSectionUse(-4, 0xBE05);  // 1
  EXPECT_THAT(sections.SectionUsed(), ElementsAre(0x7FFB, 0, 1, 0x1FC, 1, 0));
}

TEST(SectionUse, NeverLowersALengthForANegativeCount) {
  SectionFiles sections;
  sections.NoteSectionUse(16, 0x8000);
  sections.NoteSectionUse(-4, 0x8010);  // 0C
  EXPECT_THAT(sections.SectionUsed(), ElementsAre(0, 16, 0, 0, 0, 0));
}

TEST(SectionPaths, AreTheEmptyFileAndThoseOfFiveSections) {
  EXPECT_THAT(SectionFiles::Paths("/flash/F.x"),
              ElementsAre("/flash/F.x.mtx", "/flash/F.x.SA0", "/flash/F.x.SA1", "/flash/F.x.SA2",
                          "/flash/F.x.SA3", "/flash/F.x.SA4"));
}

TEST(SectionBase, IsThePathWithoutItsLastFourCharacters) {
  EXPECT_EQ(SectionBase("/flash/FW0417AB.MHX"), "/flash/FW0417AB");
  EXPECT_EQ(SectionBase(PathOf("/flash/caffè.mhx")), PathOf("/flash/caffè"));
  EXPECT_EQ(SectionBase("/flash/FW0417AB.MHX.bak"), "/flash/FW0417AB.MHX");
  EXPECT_EQ(SectionBase(PathOf("/flash/Ф.ФЛШ")), PathOf("/flash/Ф"));
  EXPECT_EQ(SectionBase(PathOf("/flash/caffè水.\U0001F36Bx")), PathOf("/flash/caffè"));
  EXPECT_EQ(SectionBase("ab"), "");
  EXPECT_EQ(SectionBase(PathOf("ФЛШ")), "");
}

#ifndef _WIN32
TEST(SectionBase, TakesAPathThatIsNoUtf8) {
  EXPECT_EQ(SectionBase("/flash/caff\xE8.MHX"), "/flash/caff\xE8");
  EXPECT_EQ(SectionBase("/flash/caff.M\xE8X"), "/flash/caff");
}
#endif

}  // namespace
}  // namespace vendlingua
