#include "core/presentation/window_top.h"

#include <gtest/gtest.h>

namespace vendlingua {
namespace {

TEST(WindowTop, DoesNotLeaveTheScreen) { EXPECT_EQ(WindowTop().Activate(1500), 0); }

TEST(WindowTop, LiftsTheWindowOnce) {
  WindowTop top;
  EXPECT_EQ(top.Activate(3000), 1000);
  EXPECT_EQ(top.Activate(1000), 1000);
  EXPECT_EQ(top.Activate(5000), 1000);
}

}  // namespace
}  // namespace vendlingua
