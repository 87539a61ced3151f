#include "core/flash/flash_image.h"

#include <gmock/gmock.h>

#include "core/formats/mes_file.h"
#include "core/platform/errors.h"
#include "support/message_files.h"

namespace vendlingua {
namespace {

using test::MesFile;
using test::Text;
using testing::HasSubstr;

// By default two slots of three messages of four cells each, 24 bytes, and languages 1 to 3.
class FlashImageTest : public testing::Test {
 protected:
  FlashImageTest() { Use(file_); }

  void Use(const MesFile& file) {
    content_ = file.Bytes();
    ApplyMesHeader(ParseMesHeader(content_), set_);
    ++set_.OpenedFiles;
    image_.MatchTo(set_);
  }

  void Pack(std::vector<int> languages) { image_.Pack(set_, content_, languages); }

  template <typename Operation>
  static std::string ReasonOfRefusal(Operation operation) {
    try {
      operation();
    } catch (const Error& error) {
      return error.what();
    }
    return "not refused";
  }

  std::string Bytes() const { return Text(image_.Bytes()); }

  MesFile file_{.names = {"Default", "ITALIANO", "ENGLISH", "DEUTSCH"}};
  std::string content_;
  MessageSet set_;
  FlashImage image_;
};

TEST_F(FlashImageTest, StartsFilledWithZeroes) { EXPECT_EQ(Bytes(), std::string(24, '\0')); }

TEST_F(FlashImageTest, PutsEveryLanguageIntoItsSlot) {
  Pack({1, 3});
  EXPECT_EQ(Bytes(), "100011111222300031113222");
}

TEST_F(FlashImageTest, TakesNoMessagesBehindTheLast) {
  file_.stride = 4;  // a slot of 16 bytes
  Use(file_);
  Pack({1, 2});
  EXPECT_EQ(Bytes(), "100011111222" + std::string(4, '\0') + "200021112222" + std::string(4, '\0'));
}

TEST_F(FlashImageTest, DividesTheMemoryIntoSlotsOfWholeBytes) {
  content_.replace(20, 4, "001B");  // 27 bytes: two slots of 13 and a byte left over
  ApplyMesHeader(ParseMesHeader(content_), set_);
  ++set_.OpenedFiles;
  image_.MatchTo(set_);
  Pack({1, 2});
  EXPECT_EQ(Bytes(), "100011111222" + std::string(1, '\0') + "200021112222" + std::string(2, '\0'));
}

TEST_F(FlashImageTest, PutsABlankForEveryPlaceholder) {
  content_.replace(24 + 36 + 20, 4,
                   "A\xFE\xFE"
                   "B");
  Pack({1});
  EXPECT_EQ(Bytes().substr(0, 8), "A  B1111");
}

TEST_F(FlashImageTest, KeepsEveryOtherByteOfTheFile) {
  std::string all_codes;
  for (int code = 0; code < 256; ++code) {
    all_codes += static_cast<char>(code == kPlaceholder ? kBlank : code);
  }
  Use({.lang_count = 1, .width = 40, .last_msg = 6, .stride = 7});
  content_.replace(24 + (20 + 8 * 40) + 20, all_codes.size(), all_codes);
  Pack({1});
  EXPECT_EQ(Bytes().substr(0, all_codes.size()), all_codes);
}

TEST_F(FlashImageTest, KeepsTheBytesThatNoLanguageWrites) {
  Pack({1, 2});
  image_.MatchTo(set_);
  Pack({3});
  EXPECT_EQ(Bytes(), "300031113222200021112222");
}

TEST_F(FlashImageTest, IsMadeAnewForAnotherFile) {
  Pack({1, 2});
  Use(file_);
  EXPECT_EQ(Bytes(), std::string(24, '\0'));
}

TEST_F(FlashImageTest, PacksNothingWithoutLanguages) {
  Pack({});
  EXPECT_EQ(Bytes(), std::string(24, '\0'));
}

TEST_F(FlashImageTest, RefusesMoreLanguagesThanSlots) {
  EXPECT_THAT(ReasonOfRefusal([this] {
                Pack({1, 2, 3});
              }),
              testing::AllOf(HasSubstr("36"), HasSubstr("24")));
}

TEST_F(FlashImageTest, RefusesMessagesThatOverrunTheLastSlot) {
  file_.last_msg = 3;
  Use(file_);
  EXPECT_THAT(ReasonOfRefusal([this] {
                Pack({1, 2});
              }),
              testing::AllOf(HasSubstr("28"), HasSubstr("24")));
}

TEST_F(FlashImageTest, LetsMessagesOverrunASlotThatIsNotTheLast) {
  file_.last_msg = 3;
  Use(file_);
  Pack({1});
  EXPECT_EQ(Bytes().substr(0, 16), "1000111112221333");
}

TEST_F(FlashImageTest, RefusesALanguageThatTheFileDoesNotHold) {
  EXPECT_THAT(ReasonOfRefusal([this] { Pack({1, 4}); }), HasSubstr("language 4"));
}

TEST_F(FlashImageTest, RefusesALanguageThatIsCut) {
  content_.resize(24 + 3 * 36 + 20 + 11);
  EXPECT_THAT(ReasonOfRefusal([this] {
                Pack({1, 3});
              }),
              testing::AllOf(HasSubstr("message 2"), HasSubstr("language 3")));
}

TEST_F(FlashImageTest, ListsTheNamesOfAllSlotsInEverySlot) {
  Pack({1, 2});
  image_.WriteLanguageNames(set_);
  EXPECT_EQ(Bytes(), "100011112111200011112111");
}

TEST_F(FlashImageTest, TakesTheNamesFromMessageHeaderCount) {
  Use({.lang_count = 2,
       .last_msg = 3,
       .header_count = "0002",
       .stride = 4,
       .names = {"Default", "ITALIANO", "ENGLISH"}});
  Pack({1, 2});
  image_.WriteLanguageNames(set_);
  EXPECT_EQ(Bytes(),
            "1000111112222222"
            "2000211112222222");
}

TEST_F(FlashImageTest, TakesEveryNameBeforeItWritesTheFirst) {
  Use({.lang_count = 3,
       .last_msg = 2,
       .header_count = "0000",
       .stride = 3,
       .names = {"Default", "A", "B", "C"}});
  Pack({1, 2, 3});
  image_.WriteLanguageNames(set_);
  EXPECT_EQ(Bytes(), "100020003000100020003000100020003000");
}

TEST_F(FlashImageTest, ListsTwentyNames) {
  Use({.lang_count = 20, .last_msg = 20, .header_count = "0001", .stride = 21});
  Pack({1});
  image_.WriteLanguageNames(set_);
  EXPECT_EQ(Bytes().substr(0, 12), "10001111" + std::string(4, '\0'));
}

TEST_F(FlashImageTest, RefusesToListMoreThanTwentyNames) {
  Use({.lang_count = 21, .last_msg = 21, .header_count = "0001", .stride = 22});
  EXPECT_THAT(ReasonOfRefusal([this] { image_.WriteLanguageNames(set_); }),
              testing::AllOf(HasSubstr("20"), HasSubstr("21")));
}

TEST_F(FlashImageTest, RefusesNamesThatOverrunTheLastSlot) {
  file_.header_count = "0002";
  Use(file_);
  Pack({1, 2});
  const std::string before = Bytes();
  EXPECT_THAT(ReasonOfRefusal([this] { image_.WriteLanguageNames(set_); }),
              testing::AllOf(HasSubstr("28"), HasSubstr("24")));
  EXPECT_EQ(Bytes(), before);
}

}  // namespace
}  // namespace vendlingua
