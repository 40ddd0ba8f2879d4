// The TRANSMIT group of the right column, and what is noticed of the modem.
#include "desktop/side_columns.h"

#include "tests/desktop/transmit_panels_support.h"

namespace zepril {
namespace {

class TransmitGroupTest : public TransmitPanelsTest {};

// ---- The TRANSMIT group ---------------------------------------------------------------------

TEST_F(TransmitGroupTest, ASwitchThatIsOnTheAirIsRedAndTheObjectsAmber) {
  loop.RunStep([this] {
    Controls().Transmit.Check6.Value = 1;
    Controls().Transmit.Check18.Value = 1;
    Controls().Transmit.Check18.BackColour.reset();
  });
  EXPECT_EQ(ColourOf("Check6", {8, 13}), QColor(0xE0, 0x48, 0x48));
  EXPECT_EQ(ColourOf("Check18", {8, 13}), QColor(0xC0, 0xC0, 0x00));
  loop.RunStep([this] {
    Controls().Transmit.Check6.Value = 0;
    Controls().Transmit.Check18.Value = 0;
    Controls().Transmit.Check18.BackColour = 0x007070;
  });
  EXPECT_EQ(ColourOf("Check6", {8, 13}), NightLook().Panel);
  EXPECT_EQ(ColourOf("Check18", {8, 13}), NightLook().Window);  // dimmed
}

TEST_F(TransmitGroupTest, TheBarFillsTowardsTheNextReport) {
  loop.RunStep([this] {
    Controls().Transmit.NextBeacon.Visible = true;
    Controls().Transmit.NextBeacon.FilledPx = 60;
    Controls().Transmit.NextBeacon.FullWidthPx = 120;
    Controls().Transmit.NextBeacon.Colour = 0x0000FF;
  });
  const QWidget* bar = Find<>(*window, "NextBeacon");
  EXPECT_TRUE(bar->isVisible());
  EXPECT_EQ(ColourOf("NextBeacon", {2, 2}), QColor(255, 0, 0));
  EXPECT_NE(ColourOf("NextBeacon", {bar->width() - 4, 2}), QColor(255, 0, 0));
}

TEST_F(TransmitGroupTest, WhatBecameOfAFrameStandsUnderTheSwitch) {
  auto* outcome = Find<QLabel>(*window, "TxOutcome");
  loop.RunStep([this] {
    Controls().Transmit.TxOutcome.Caption = "NOT SENT: LINK LOST";
    Controls().Transmit.TxOutcome.ForeColour = 0x4848E0;
    Controls().Transmit.Check6.BackColour = 0x4848E0;
  });
  EXPECT_EQ(outcome->text(), "NOT SENT: LINK LOST");
  EXPECT_LE(outcome->fontMetrics().horizontalAdvance(outcome->text()), outcome->width());
  // The switch is loud while a frame leaves, on or off.
  EXPECT_EQ(ColourOf("Check6", {8, 13}), QColor(0xE0, 0x48, 0x48));
  // It is under the switch, whose place does not move with it.
  const QRect place = PlaceOf(Find<>(*window, "Check6"));
  loop.RunStep([this] { Controls().Transmit.TxOutcome.Caption.clear(); });
  Pump();
  EXPECT_EQ(PlaceOf(Find<>(*window, "Check6")), place);
  EXPECT_GE(PlaceOf(outcome).top(), place.bottom());
}

TEST_F(TransmitGroupTest, EveryPanelThatHoldsTheCycleSaysSo) {
  OpenTxSetup();
  OpenObjectSetup();
  OpenTerminal();
  loop.RunStep([this] { Controls().Map.Option1.RightClick(); });
  Pump();
  for (const char* panel : {"Frame4", "Frame11", "Frame2", "Frame19"}) {
    auto* line = Find<QLabel>(*Find<>(*window, panel), "ReceptionRests");
    EXPECT_EQ(line->text(), "Nothing is received while this is open.") << panel;
    EXPECT_TRUE(line->isVisible()) << panel;
  }
  EXPECT_EQ(Find<QLabel>(*window, "LinkWords")->text(), "paused");
}

// ---- Notices --------------------------------------------------------------------------------

TEST_F(TransmitGroupTest, TheNoticeOfTheLinkStandsOverTheMapUntilItIsClicked) {
  Controls().Status.LinkNotice.Click = nullptr;
  Controls().Status.LinkNotice.Click = [this] { Controls().Status.LinkNotice.Visible = false; };
  loop.RunStep([this] {
    Controls().Status.LinkNotice.Visible = true;
    Controls().Status.LinkNotice.Caption =
        "The port can't be opened: permission denied. Add yourself to the group of the port:\n"
        "sudo usermod -aG dialout $USER";
  });
  auto* notice = Find<QLabel>(*window, "LinkNotice");
  for (const QSize size : {QSize(640, 480), QSize(1280, 800)}) {
    Resize(size.width(), size.height());
    EXPECT_TRUE(notice->isVisible());
    EXPECT_TRUE(Map()->rect().contains(notice->geometry())) << size.width();
    EXPECT_GE(notice->height(), notice->heightForWidth(notice->width())) << size.width();
  }
  // Its command can be copied.
  EXPECT_TRUE(notice->textInteractionFlags().testFlag(Qt::TextSelectableByMouse));
  QTest::mouseClick(notice, Qt::LeftButton);
  EXPECT_FALSE(notice->isVisible());
}

TEST_F(TransmitGroupTest, TheNoticeOfAFileStandsBelowThatOfTheLinkUntilItIsClicked) {
  StatusControls& status = Controls().Status;
  status.FileNotice.Click = nullptr;
  status.FileNotice.Click = [&status] { status.FileNotice.Visible = false; };
  loop.RunStep([&status] {
    status.LinkNotice.Visible = status.FileNotice.Visible = true;
    status.LinkNotice.Caption = "The port can't be opened: permission denied.";
    status.FileNotice.Caption =
        "C:\\ZEPRIL\\U33\\LOG\\_LOGRAW_.TXT can't be written: the disk is full. Logs rest and are "
        "tried again every 10 minutes; reception goes on.";
  });
  auto* notice = Find<QLabel>(*window, "FileNotice");
  for (const QSize size : {QSize(640, 480), QSize(1280, 800)}) {
    Resize(size.width(), size.height());
    EXPECT_TRUE(notice->isVisible());
    EXPECT_TRUE(Map()->rect().contains(notice->geometry())) << size.width();
    EXPECT_GE(notice->height(), notice->heightForWidth(notice->width())) << size.width();
    EXPECT_FALSE(notice->geometry().intersects(Find<>(*window, "LinkNotice")->geometry()));
  }
  QTest::mouseClick(notice, Qt::LeftButton);
  EXPECT_FALSE(notice->isVisible());
  EXPECT_TRUE(Find<>(*window, "LinkNotice")->isVisible());
}

TEST_F(TransmitGroupTest, TheNoticeOfTheTemporaryModeStandsOverTheMap) {
  loop.RunStep([this] {
    Controls().Raw.RawList.Visible = true;
    Terminal().Label49.Visible = true;
    Terminal().Label49.Caption = "TEMPORARY MODE FSK 300 Bd RELEASE BUTTON TO RETURN TO RPR 300 Bd";
  });
  for (const QSize size : {QSize(640, 480), QSize(1280, 800)}) {
    Resize(size.width(), size.height());
    const QWidget* notice = Find<>(*window, "Label49");
    EXPECT_TRUE(notice->isVisible());
    EXPECT_TRUE(Map()->rect().contains(notice->geometry())) << size.width();
  }
}

TEST_F(TransmitGroupTest, TheLineOfARecordIsPressedAlsoByTheKeyboard) {
  int pressed = 0;
  Controls().Record.Label20.Click = nullptr;
  Controls().Record.Label20.Click = [&] { ++pressed; };
  loop.RunStep([this] { Controls().Record.Frame1.Visible = true; });
  Click("Label20");
  EXPECT_EQ(pressed, 1);
  Find<>(*window, "Label20")->setFocus();
  QTest::keyClick(Find<>(*window, "Label20"), Qt::Key_Return);
  EXPECT_EQ(pressed, 2);
}

TEST_F(TransmitGroupTest, TheHeldRightButtonOfTheRawListIsTold) {
  std::string told;
  Controls().Raw.RawList.RightDown = nullptr;
  Controls().Raw.RawList.RightDown = [&] { told += "down "; };
  Controls().Raw.RawList.RightUp = nullptr;
  Controls().Raw.RawList.RightUp = [&] { told += "up "; };
  loop.RunStep([this] { Controls().Raw.RawList.Visible = true; });
  auto* list = Find<QListView>(*window, "RawList");
  QTest::mousePress(list->viewport(), Qt::RightButton);
  EXPECT_EQ(told, "down ");
  QTest::mouseRelease(list->viewport(), Qt::RightButton);
  EXPECT_EQ(told, "down up ");
  // A page that goes while it is held.
  QTest::mousePress(list->viewport(), Qt::RightButton);
  loop.RunStep([this] { Controls().Raw.RawList.Visible = false; });
  EXPECT_EQ(told, "down up down up ");
}

}  // namespace
}  // namespace zepril
