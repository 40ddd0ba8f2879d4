// Message fields and their caption in windows of any width.
#include "core/main_window_resize.h"

#include <gtest/gtest.h>

namespace zepril {
namespace {

TEST(MainWindowResize, TheAutoAnswerSwitchNamesTheFieldThatHoldsTheAnswer) {
  WindowControls window;
  ChatControls controls;
  ChatState chat;
  chat.AutoAnswerOn = 1;
  MainWindowResize(window, controls, chat);
  EXPECT_EQ(controls.Check16.Caption, "AUTO ANSWER TEXT:");
  EXPECT_EQ(controls.Check16.WidthPx, 159);
  controls.Text2.Text = "QX2CD";
  MainWindowResize(window, controls, chat);
  EXPECT_EQ(controls.Check16.Caption, "AUTO-A");
  EXPECT_EQ(controls.Check16.WidthPx, 73);
  controls.Text2.Text = "  ";
  chat.AutoAnswerOn = 0;
  MainWindowResize(window, controls, chat);
  EXPECT_EQ(controls.Check16.Caption, "AUTO-A");
}

TEST(MainWindowResize, TheMessageFieldStaysWithinItsWidths) {
  WindowControls window;
  ChatControls controls;
  const ChatState chat;
  window.WidthPx = 1280;
  MainWindowResize(window, controls, chat);
  EXPECT_EQ(controls.Text3.WidthPx, 488);
  window.WidthPx = 500;
  MainWindowResize(window, controls, chat);
  EXPECT_EQ(controls.Text3.WidthPx, 500 - 73 - 96);
  window.WidthPx = 100;
  MainWindowResize(window, controls, chat);
  EXPECT_EQ(controls.Text3.WidthPx, 10);
}

}  // namespace
}  // namespace zepril
