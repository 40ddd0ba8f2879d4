// What the centre follows and what the two buttons show of it.
#include "core/centre_follow.h"

#include <gtest/gtest.h>

#include "core/controls/map_controls.h"

namespace zepril {
namespace {

TEST(CentreFollow, TheButtonsShowWhoIsFollowed) {
  MapViewState view;
  MapControls controls;
  FollowWith(view, controls, Following::Station);
  EXPECT_EQ(view.CentreFollow, Following::Station);
  EXPECT_FALSE(controls.Option1.Value);
  EXPECT_TRUE(controls.Option2.Value);
  FollowWith(view, controls, Following::OwnPosition);
  EXPECT_EQ(view.CentreFollow, Following::OwnPosition);
  EXPECT_TRUE(controls.Option1.Value);
  EXPECT_FALSE(controls.Option2.Value);
  FollowNobody(view, controls);
  EXPECT_EQ(view.CentreFollow, Following::Nobody);
  EXPECT_FALSE(controls.Option1.Value);
  EXPECT_FALSE(controls.Option2.Value);
}

TEST(CentreFollow, AJumpLeavesTheButtonsUntilItIsDone) {
  MapViewState view;
  MapControls controls;
  FollowWith(view, controls, Following::Station);
  JumpOnceToTyped(view);
  EXPECT_EQ(view.CentreFollow, Following::TypedPosition);
  EXPECT_TRUE(controls.Option2.Value);
  ShowCentreFollow(view, controls);
  EXPECT_FALSE(controls.Option2.Value);
}

}  // namespace
}  // namespace zepril
