#include "core/formats/edit_journal.h"

#include <gmock/gmock.h>

#include <string>

#include "support/message_files.h"

namespace vendlingua {
namespace {

using test::TextFrom;
using testing::ElementsAre;
using testing::IsEmpty;

const JournalSubject kSubject = {"/a/B.MES", 9, 0xCBF43926U, 1, 2};

JournalEntry Entry(std::uint16_t message, std::string_view text) {
  return {message, TextFrom(text), 3, 1};
}

// The first line, then: a record of 28 bytes, a path of 8, length, checksum, origin, destination.
TEST(EditJournal, BeginsWithWhatItIsOf) {
  const std::string head = ComposeJournalHead(kSubject);
  const std::string number_28("\x1C\0\0\0", 4);
  const std::string number_8("\x08\0\0\0", 4);
  const std::string record = number_8 + "/a/B.MES" + std::string("\x09\0\0\0", 4) +
                             "\x26\x39\xF4\xCB" + std::string("\x01\0\0\0\x02\0\0\0", 8);
  EXPECT_EQ(head.substr(0, head.size() - 4), "Vendlingua journal 1\n" + number_28 + record);
}

TEST(EditJournal, ComesBackAsItWasWritten) {
  const EditJournal journal{kSubject, {Entry(0, "one"), Entry(3, "two"), Entry(0, "three")}};
  std::string bytes = ComposeJournalHead(journal.subject);
  for (const JournalEntry& entry : journal.entries) {
    bytes += ComposeJournalEntry(entry);
  }
  EXPECT_EQ(ParseJournal(bytes), journal);
  JournalSubject without_origin = kSubject;
  without_origin.origin.reset();
  EXPECT_EQ(ParseJournal(ComposeJournalHead(without_origin))->subject, without_origin);
}

TEST(EditJournal, EndsBeforeAnEntryThatWasBeingWritten) {
  const std::string head = ComposeJournalHead(kSubject);
  const std::string one = ComposeJournalEntry(Entry(0, "one"));
  const std::string two = ComposeJournalEntry(Entry(1, "two"));
  for (std::size_t length = 0; length < two.size(); ++length) {
    const auto journal = ParseJournal(head + one + two.substr(0, length));
    ASSERT_TRUE(journal) << length;
    EXPECT_THAT(journal->entries, ElementsAre(Entry(0, "one"))) << length;
  }
  std::string damaged = two;
  damaged[20] = 'x';
  EXPECT_THAT(ParseJournal(head + damaged + one)->entries, IsEmpty());
}

TEST(EditJournal, IsNoneWithoutAWholeSubject) {
  const std::string head = ComposeJournalHead(kSubject);
  for (std::size_t length = 0; length < head.size(); ++length) {
    EXPECT_FALSE(ParseJournal(head.substr(0, length))) << length;
  }
  for (std::size_t place = 0; place < head.size(); ++place) {
    std::string damaged = head;
    damaged[place] = static_cast<char>(damaged[place] ^ 1);
    EXPECT_FALSE(ParseJournal(damaged)) << place;
  }
}

}  // namespace
}  // namespace vendlingua
