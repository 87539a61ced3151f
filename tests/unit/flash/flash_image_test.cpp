#include "core/flash/flash_image.h"

#include <gmock/gmock.h>

#include "core/formats/mes_file.h"
#include "core/platform/errors.h"
#include "support/message_files.h"
#include "support/same_bytes.h"

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

TEST_F(FlashImageTest, RefusesALanguageWhoseNameIsCut) {
  content_.resize(24 + 3 * 36 + 19);
  EXPECT_THAT(ReasonOfRefusal([this] { Pack({1, 3}); }), HasSubstr("language 3"));
}

// What an earlier run left there does not stay either.
TEST_F(FlashImageTest, Puts0ForWhatALanguageLacksAtTheEndOfTheFile) {
  const std::string languages =
      "100011111222"
      "300031113222";
  constexpr std::size_t kSlot = 12;
  const std::string whole = content_;
  for (std::size_t there = 0; there <= kSlot; ++there) {
    Pack({1, 2});
    content_ = whole.substr(0, 24 + 3 * 36 + 20 + there);
    EXPECT_EQ(image_.Pack(set_, content_, std::vector<int>{1, 3}),
              there < kSlot ? std::vector<int>{3} : std::vector<int>());
    EXPECT_EQ(Bytes(), languages.substr(0, kSlot + there) + std::string(kSlot - there, '\0'));
    content_ = whole;
  }
}

// A set that is wider and longer than any that can be edited, put together by hand.
TEST_F(FlashImageTest, PacksSetsOfAnyWidthAndLength) {
  for (const auto& [width, messages] :
       {std::pair<std::size_t, std::size_t>(60, 3), {256, 40}, {1, 32000}, {4, 600}}) {
    const MesFile file{.width = width, .last_msg = messages - 1, .stride = messages};
    const std::size_t language_bytes = width * messages;
    set_ = {};
    set_.LangCount = 2;
    set_.LastCol = static_cast<std::uint8_t>(width - 1);
    set_.LastMsg = static_cast<std::uint16_t>(messages - 1);
    set_.MemLength = static_cast<std::uint32_t>(2 * language_bytes);
    set_.BlockLength = static_cast<float>(20 + language_bytes);
    set_.OpenedFiles = 100;
    image_ = FlashImage();
    image_.MatchTo(set_);
    content_ = std::string(24, '-');
    std::string packed;
    for (std::size_t block = 0; block < 3; ++block) {
      std::string texts;
      for (std::size_t message = 0; message < messages; ++message) {
        texts += file.Message(block, message);
      }
      content_ += std::string(20, 'n') + texts;
      packed += block == 0 ? "" : texts;
    }
    Pack({1, 2});
    EXPECT_TRUE(test::SameBytes(Bytes(), packed)) << width << " x " << messages;
  }
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
