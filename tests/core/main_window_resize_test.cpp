#include "core/main_window_resize.h"

#include <gtest/gtest.h>

namespace zepril {
namespace {

TEST(MainWindowResize, TheAutoAnswerSwitchNamesTheFieldThatHoldsTheAnswer) {
  MainWindowControls controls;
  ChatState chat;
  chat.AutoAnswerOn = 1;
  MainWindowResize(controls, chat);
  EXPECT_EQ(controls.Transmit.Check16.Caption, "AUTO ANSWER TEXT:");
  EXPECT_EQ(controls.Transmit.Check16.WidthPx, 159);
  controls.Transmit.Text2.Text = "QX2CD";
  MainWindowResize(controls, chat);
  EXPECT_EQ(controls.Transmit.Check16.Caption, "AUTO-A");
  EXPECT_EQ(controls.Transmit.Check16.WidthPx, 73);
  controls.Transmit.Text2.Text = "  ";
  chat.AutoAnswerOn = 0;
  MainWindowResize(controls, chat);
  EXPECT_EQ(controls.Transmit.Check16.Caption, "AUTO-A");
}

TEST(MainWindowResize, TheMessageFieldStaysWithinItsWidths) {
  MainWindowControls controls;
  const ChatState chat;
  controls.Window.WidthPx = 1280;
  MainWindowResize(controls, chat);
  EXPECT_EQ(controls.Transmit.Text3.WidthPx, 488);
  controls.Window.WidthPx = 500;
  MainWindowResize(controls, chat);
  EXPECT_EQ(controls.Transmit.Text3.WidthPx, 500 - 73 - 96);
  controls.Window.WidthPx = 100;
  MainWindowResize(controls, chat);
  EXPECT_EQ(controls.Transmit.Text3.WidthPx, 10);
}

}  // namespace
}  // namespace zepril
