// The bits of the mask of shown classes.
#include "core/state/shown_classes.h"

#include <gtest/gtest.h>

namespace zepril {
namespace {

TEST(ShownClasses, MaskBitsStandForTheirClasses) {
  const int bit_of_class[] = {2, 1, 0, 3, 4};
  for (int station_class = 0; station_class < 5; ++station_class) {
    EXPECT_FALSE(ClassIsShown(kAllClasses & ~(1 << bit_of_class[station_class]), station_class));
    EXPECT_TRUE(ClassIsShown(1 << bit_of_class[station_class], station_class));
  }
}

TEST(ShownClasses, WhatIsNoClassIsAlwaysShown) {
  EXPECT_TRUE(ClassIsShown(0, -1));
  EXPECT_TRUE(ClassIsShown(0, 5));
}

}  // namespace
}  // namespace zepril
