// Who may have the computer's clock set. Nothing here sets it.
#include "platform/native/set_clock.h"

#include <gtest/gtest.h>

namespace zepril {
namespace {

TEST(SetClock, IsRefusedToTheAdministratorAndLeftToTheSystemForOthers) {
  EXPECT_FALSE(MaySetClock(0));
  EXPECT_TRUE(MaySetClock(1));
  EXPECT_TRUE(MaySetClock(1000));
}

}  // namespace
}  // namespace zepril
