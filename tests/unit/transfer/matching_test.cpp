#include "core/transfer/matching.h"

#include <gmock/gmock.h>

#include <string>

#include "support/message_files.h"

namespace vendlingua {
namespace {

constexpr std::nullopt_t kNewMessage = std::nullopt;

// A message a character.
MessageTexts OneCharacterTexts(const std::string& characters) {
  MessageTexts texts;
  for (const char character : characters) {
    texts.emplace_back(test::Codes({&character, 1}));
  }
  return texts;
}

Matches Matched(const std::string& now, const std::string& before) {
  return SameMessages(OneCharacterTexts(now), OneCharacterTexts(before));
}

TEST(SameMessages, AreFoundAtTheirNumbers) {
  EXPECT_EQ(Matched("abc", "abc"), (Matches{0, 1, 2}));
  EXPECT_EQ(Matched("", ""), (Matches{}));
}

TEST(SameMessages, AreFoundUnderOtherNumbers) {
  EXPECT_EQ(Matched("xabc", "abc"), (Matches{kNewMessage, 0, 1, 2}));
  EXPECT_EQ(Matched("bc", "abc"), (Matches{1, 2}));
  EXPECT_EQ(Matched("cab", "abc"), (Matches{2, 0, 1}));
}

TEST(SameMessages, HaveTheSameText) {
  EXPECT_EQ(Matched("axc", "abc"), (Matches{0, kNewMessage, 2}));
  EXPECT_EQ(Matched("xyz", "abc"), (Matches{kNewMessage, kNewMessage, kNewMessage}));
  EXPECT_EQ(Matched("ab", ""), (Matches{kNewMessage, kNewMessage}));
}

TEST(SameMessages, AreToldFromOthersThatReadSoByTheMessageBefore) {
  EXPECT_EQ(Matched("xxatYbtZ", "atybtz"),
            (Matches{kNewMessage, kNewMessage, 0, 1, kNewMessage, 3, 4, kNewMessage}));
}

TEST(SameMessages, AreToldFromOthersThatReadSoByTheMessageBehind) {
  EXPECT_EQ(Matched("xxAtaBtb", "ctadtb"),
            (Matches{kNewMessage, kNewMessage, kNewMessage, 1, 2, kNewMessage, 4, 5}));
}

TEST(SameMessages, AreToldByNeighboursBeforeTheirNumber) {
  // Message 3 reads like the older message 3, but it is the older message 1.
  EXPECT_EQ(Matched("xyatbtc", "atbtc"), (Matches{kNewMessage, kNewMessage, 0, 1, 2, 3, 4}));
}

TEST(SameMessages, InARowAreToldByBothNeighbours) {
  EXPECT_EQ(Matched("xattb", "attb"), (Matches{kNewMessage, 0, 1, 2, 3}));
}

TEST(SameMessages, AreNotGuessed) {
  // Which one of the two is gone?
  EXPECT_EQ(Matched("xyzatb", "attb"),
            (Matches{kNewMessage, kNewMessage, kNewMessage, 0, kNewMessage, 3}));
  EXPECT_EQ(Matched("xyzatB", "attb"),
            (Matches{kNewMessage, kNewMessage, kNewMessage, 0, kNewMessage, kNewMessage}));
}

TEST(SameMessages, InARowAreToldByOneNeighbourWhenTheRowIsAsLong) {
  EXPECT_EQ(Matched("xattB", "attb"), (Matches{kNewMessage, 0, 1, 2, kNewMessage}));
}

TEST(SameMessages, AreOneOlderMessageEach) {
  // Message 2 reads like the older message 2, which is message 4 now.
  EXPECT_EQ(Matched("xytbtc", "abtc"), (Matches{kNewMessage, kNewMessage, kNewMessage, 1, 2, 3}));
}

TEST(SameMessages, AreToldByTheirNumberWhenNothingElseTells) {
  EXPECT_EQ(Matched("tt", "tt"), (Matches{0, 1}));
  EXPECT_EQ(Matched("ttt", "tt"), (Matches{0, 1, kNewMessage}));
  EXPECT_EQ(Matched("xt", "tt"), (Matches{kNewMessage, 1}));
}

TEST(SameMessages, MayBeMoreThanBefore) {
  EXPECT_EQ(Matched("ab", "a"), (Matches{0, kNewMessage}));
  EXPECT_EQ(Matched("a", "ab"), (Matches{0}));
}

}  // namespace
}  // namespace vendlingua
