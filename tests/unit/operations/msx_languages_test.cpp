#include <gmock/gmock.h>

#include <string>

#include "core/operations/languages.h"
#include "core/platform/errors.h"
#include "support/engine_test.h"

namespace vendlingua {
namespace {

using test::MsxFile;
using test::MsxMessage;
using test::Text;

class MsxLanguagesTest : public test::EngineTest {
 protected:
  MsxLanguagesTest() { Open("FILE.MSX", MsxFile(2)); }
};

TEST_F(MsxLanguagesTest, TakesOriginZeroFromTheBuiltInTable) {
  engine_.languages.ChooseOrigin(0);
  EXPECT_EQ(Origin(0), "    MP0417AA    ");
  EXPECT_EQ(Origin(2), "    Diagnosi    ");
  EXPECT_EQ(Origin(454), "  454 Messaggio ");
}

TEST_F(MsxLanguagesTest, TakesAnotherOriginFromItsLines) {
  engine_.languages.ChooseOrigin(2);
  EXPECT_EQ(Origin(0), MsxMessage(2, 0));
  EXPECT_EQ(Origin(169), "   LANGUAGE 2   ");
  EXPECT_EQ(Origin(454), MsxMessage(2, 454));
}

TEST_F(MsxLanguagesTest, LeavesTheChecksumOutOfTheText) {
  engine_.languages.ChooseOrigin(1);
  EXPECT_EQ(Text(set_.OriginText[3].Cells()), MsxMessage(1, 3) + std::string(24, ' '));
}

TEST_F(MsxLanguagesTest, LoadsTheBuiltInTableForEveryOrigin) {
  engine_.languages.ChooseOrigin(1);
  EXPECT_EQ(Text(set_.DefaultMessages[2]), "    Diagnosi    ");
}

TEST_F(MsxLanguagesTest, TakesTheDestinationFromItsLines) {
  engine_.languages.ChooseOrigin(0);
  engine_.languages.ChooseDestination(1);
  EXPECT_EQ(set_.DestLang, 1);
  EXPECT_EQ(Destination(7), MsxMessage(1, 7));
}

TEST_F(MsxLanguagesTest, NeverAllowsANewDestinationWhenTheMenuOpens) {
  EXPECT_FALSE(menus().mnuDes[0].enabled);
}

TEST_F(MsxLanguagesTest, ChangesNothingWhenLinesAreMissing) {
  engine_.languages.ChooseOrigin(0);
  engine_.languages.ChooseDestination(1);
  EXPECT_THROW(engine_.languages.ChooseDestination(3), FileError);
  EXPECT_THROW(engine_.languages.ChooseOrigin(3), FileError);
  EXPECT_EQ(set_.DestLang, 1);
  EXPECT_EQ(Destination(0), MsxMessage(1, 0));
  EXPECT_EQ(Origin(2), "    Diagnosi    ");
}

}  // namespace
}  // namespace vendlingua
