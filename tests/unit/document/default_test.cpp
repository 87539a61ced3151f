#include <gmock/gmock.h>

#include <cstdint>
#include <string>

#include "core/document/message_set.h"
#include "support/message_files.h"

namespace vendlingua {
namespace {

using test::Text;

TEST(LoadDefaultMessages, FillsTheTableWithTheBoardsOwnTexts) {
  MessageSet set;
  set.LoadDefaultMessages();
  EXPECT_EQ(Text(set.DefaultMessages[0]), "    MP0417AA    ");
  EXPECT_EQ(Text(set.DefaultMessages[3]), "Credito \xFE \xFE\xFE\xFE\xFE\xFE\xFE");
  EXPECT_EQ(Text(set.DefaultMessages[43]),
            "E12 Tcaffe<60 \xDF"
            "C");
  EXPECT_EQ(Text(set.DefaultMessages[120]), "Sconto fedelt\xE0  ");
  EXPECT_EQ(Text(set.DefaultMessages[255]),
            "Doppio caff\xE8"
            "FB \xFE");
  EXPECT_EQ(Text(set.DefaultMessages[169]), "    Italiano    ");
  EXPECT_EQ(Text(set.DefaultMessages[454]), "  454 Messaggio ");
}

TEST(LoadDefaultMessages, KeepsRepeatedAndBlankMessages) {
  MessageSet set;
  set.LoadDefaultMessages();
  EXPECT_EQ(set.DefaultMessages[18], set.DefaultMessages[16]);
  EXPECT_EQ(Text(set.DefaultMessages[18]), "   Introduci    ");
  EXPECT_EQ(Text(set.DefaultMessages[20]), std::string(16, ' '));
}

// Sum of all bytes and of each byte times its place, computed from the firmware's listing by
// another program, so that a slip in any entry shows.
TEST(LoadDefaultMessages, AgreesWithTheFirmwaresListing) {
  MessageSet set;
  set.LoadDefaultMessages();
  std::uint64_t sum = 0;
  std::uint64_t weighted = 0;
  std::uint64_t place = 0;
  for (const DefaultMessage& message : set.DefaultMessages) {
    for (const DisplayCode code : message) {
      sum += code;
      weighted += ++place * code;
    }
  }
  EXPECT_EQ(sum, 641077U);
  EXPECT_EQ(weighted, 2318078134U);
}

TEST(LoadDefaultMessages, ReplacesWhateverTheTableHeld) {
  MessageSet once;
  once.LoadDefaultMessages();
  MessageSet twice = once;
  twice.DefaultMessages[7].fill('x');
  twice.LastMsg = 3;
  twice.CurrentFileType = kMesType;
  twice.LoadDefaultMessages();
  EXPECT_EQ(twice.DefaultMessages, once.DefaultMessages);
}

}  // namespace
}  // namespace vendlingua
