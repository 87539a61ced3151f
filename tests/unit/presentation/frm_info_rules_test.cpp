#include <gtest/gtest.h>

#include "core/presentation/center_form.h"
#include "core/presentation/revision_line.h"

namespace vendlingua {
namespace {

TEST(RevisionLine, HasTheThreeNumbers) { EXPECT_EQ(RevisionLine(1, 1, 20), "Rev. 1.1.20"); }

TEST(CenterForm1, PlacesAWindowByItself) {
  const FormPlace place = CenterForm1({3900, 2000}, {3900, 2000});
  EXPECT_EQ(place.left, 4500);
  EXPECT_EQ(place.top, 3350);  // 3500 - 0.075 x 2000
}

TEST(CenterForm1, PlacesAnotherWindow) {
  const FormPlace place = CenterForm1({4000, 2000}, {1000, 1000});
  EXPECT_EQ(place.left, 6000);
  EXPECT_EQ(place.top, 3850);
}

}  // namespace
}  // namespace vendlingua
