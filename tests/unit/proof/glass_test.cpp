#include "core/proof/glass.h"

#include <gmock/gmock.h>

#include "support/message_files.h"

namespace vendlingua {
namespace {

using testing::ElementsAre;

TEST(GlassCells, ShowTheCodesOfTheText) {
  EXPECT_THAT(GlassCells(test::Codes("A ")), ElementsAre(GlassCell{'A'}, GlassCell{' '}));
}

TEST(GlassCells, RunThroughDigitsWhereTheBoardFills) {
  EXPECT_THAT(GlassCells(test::Codes("\xFE.\xFE\xFE"), 8),
              ElementsAre(GlassCell{'8', true}, GlassCell{'.'}, GlassCell{'9', true},
                          GlassCell{'0', true}));
}

}  // namespace
}  // namespace vendlingua
