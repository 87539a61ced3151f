#include "core/formats/held_messages.h"

#include "support/engine_test.h"

namespace vendlingua {
namespace {

using test::MesFile;
using test::MsxFile;

class HeldMessagesTest : public test::EngineTest {};

TEST_F(HeldMessagesTest, OfAMesFileEndWithItsBytes) {
  const MesFile file;
  const std::size_t start = 24 + file.BlockLength() + 20;
  for (const auto& [bytes, held] : {std::pair{0, 0}, {3, 0}, {4, 1}, {11, 2}, {12, 3}, {16, 3}}) {
    Open("FILE.MES", file.Bytes().substr(0, start + static_cast<std::size_t>(bytes)));
    EXPECT_EQ(MessagesHeld(set_, 1), static_cast<std::size_t>(held)) << bytes;
    EXPECT_EQ(MessagesHeld(set_, 0), 3U);
  }
}

TEST_F(HeldMessagesTest, OfAnMsxFileEndWithItsLines) {
  const std::string whole = MsxFile(1);
  Open("FILE.MSX", whole);
  EXPECT_EQ(MessagesHeld(set_, 0), 455U);
  EXPECT_EQ(MessagesHeld(set_, 1), 455U);
  Open("FILE.MSX", whole.substr(0, whole.find('\n', whole.size() - 50) + 1));
  EXPECT_EQ(MessagesHeld(set_, 1), 454U);
}

}  // namespace
}  // namespace vendlingua
