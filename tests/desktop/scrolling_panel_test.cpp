// Where the set-up panels lie, and what the keys do with them.
#include "desktop/scrolling_panel.h"

#include "tests/desktop/transmit_panels_support.h"

namespace zepril {
namespace {

class ScrollingPanelTest : public TransmitPanelsTest {};

// ---- Places ---------------------------------------------------------------------------------

TEST_F(ScrollingPanelTest, TheSetUpPanelsKeepTheirPlaceAtEverySize) {
  OpenTxSetup();
  OpenObjectSetup();
  for (const QSize size : {QSize(640, 480), QSize(700, 520), QSize(720, 900), QSize(790, 480),
                           QSize(800, 600), QSize(1280, 800), QSize(3840, 2160)}) {
    Resize(size.width(), size.height());
    const auto where = [&](const char* what) {
      return std::string(what) + " at " + std::to_string(size.width());
    };
    const QRect under = PlaceOf(Map()->parentWidget());
    for (const char* name : {"Frame4", "Frame11"}) {
      EXPECT_TRUE(under.contains(PlaceOf(Find<>(*window, name)))) << where(name);
      // Nothing is cut off at the side, and the buttons below are always there.
      auto* area = Find<>(*window, name)->findChild<QScrollArea*>();
      EXPECT_GE(area->viewport()->width(), area->widget()->minimumSizeHint().width())
          << where(name);
    }
    for (const char* name : {"TxOk", "TxAbort", "ObjectOk", "Command31", "Command32"}) {
      EXPECT_TRUE(under.contains(PlaceOf(Find<>(*window, name)))) << where(name);
    }
    // The map's centre can be seen while the object gets its place.
    const QPoint centre = PlaceOf(Map()).center();
    const QRect around(centre - QPoint(12, 12), QSize(25, 25));
    EXPECT_FALSE(around.intersects(PlaceOf(Find<>(*window, "Frame11")))) << where("Frame11");
  }
}

TEST_F(ScrollingPanelTest, AColumnThatComesBackStaysUnderTheSetUpPanel) {
  Resize(640, 480);
  OpenTxSetup();
  Resize(800, 600);
  // Over both columns here.
  const QRect panel = PlaceOf(Find<>(*window, "Frame4"));
  EXPECT_TRUE(panel.intersects(PlaceOf(Find<>(*window, "Combo9"))));
  for (const QPoint& corner :
       {panel.topLeft() + QPoint(2, 20), panel.topRight() + QPoint(-2, 20)}) {
    QWidget* seen = window->childAt(corner);
    EXPECT_TRUE(seen == Find<>(*window, "Frame4") || Find<>(*window, "Frame4")->isAncestorOf(seen));
  }
}

TEST_F(ScrollingPanelTest, OnALargeWindowAllOfTxSetupIsSeen) {
  Resize(1280, 800);
  OpenTxSetup();
  Pump();
  auto* area = Find<>(*window, "Frame4")->findChild<QScrollArea*>();
  EXPECT_GE(area->viewport()->height(), area->widget()->sizeHint().height());
  // Over the left part of the map.
  EXPECT_TRUE(PlaceOf(Map()).contains(PlaceOf(Find<>(*window, "Frame4"))));
}

TEST_F(ScrollingPanelTest, WhereItIsTooLowTxSetupScrollsToTheFieldThatIsTabbedTo) {
  Resize(640, 480);
  OpenTxSetup();
  Pump();
  auto* area = Find<>(*window, "Frame4")->findChild<QScrollArea*>();
  const auto seen = [&](const char* name) {
    const QWidget* widget = Find<>(*window, name);
    const QRect place(widget->mapTo(area->viewport(), QPoint()), widget->size());
    return area->viewport()->rect().contains(place);
  };
  EXPECT_FALSE(seen("TxLevel"));
  Find<>(*window, "CrossUp")->setFocus();
  QTest::keyClick(window->focusWidget(), Qt::Key_Tab);
  EXPECT_EQ(window->focusWidget(), Find<>(*window, "TxLevel"));
  EXPECT_TRUE(seen("TxLevel"));
}

TEST_F(ScrollingPanelTest, APressOnAPanelIsNoneOnTheMap) {
  int presses = 0;
  Controls().Map.Picture1.MouseDown = nullptr;
  Controls().Map.Picture1.MouseDown = [&](MousePress) { ++presses; };
  loop.RunStep([this] {
    Controls().Record.Frame1.Visible = true;
    Controls().Qth.Frame2.Visible = true;
    Controls().Status.LinkNotice.Visible = true;
    Controls().Terminal.Label49.Visible = true;
  });
  OpenTxSetup();
  OpenObjectSetup();
  for (const char* name :
       {"Frame1", "Label20", "Frame2", "LinkNotice", "Label49", "Frame4", "Frame11"}) {
    QTest::mousePress(Find<>(*window, name), Qt::LeftButton, {}, QPoint(2, 2));
    EXPECT_EQ(presses, 0) << name;
    QTest::mouseRelease(Find<>(*window, name), Qt::LeftButton, {}, QPoint(2, 2));
  }
}

// ---- Keys -----------------------------------------------------------------------------------

TEST_F(ScrollingPanelTest, EscClosesWhatLiesOnTopByItsHarmlessButton) {
  std::string pressed;
  Tx().TxAbort.Click = nullptr;
  Tx().TxAbort.Click = [&] {
    pressed += "abort ";
    Tx().Frame4.Visible = false;
  };
  Object().Command32.Click = nullptr;
  Object().Command32.Click = [&] {
    pressed += "cancel ";
    Object().Frame11.Visible = false;
  };
  OpenTxSetup();
  OpenObjectSetup();
  Map()->setFocus();
  QTest::keyClick(Map(), Qt::Key_Escape);
  EXPECT_EQ(pressed, "cancel ");
  EXPECT_TRUE(Find<>(*window, "Frame4")->isVisible());
  QTest::keyClick(Map(), Qt::Key_Escape);
  EXPECT_EQ(pressed, "cancel abort ");
  EXPECT_FALSE(Find<>(*window, "Frame4")->isVisible());
}

TEST_F(ScrollingPanelTest, EscPressesNoButtonThatIsDisabled) {
  int aborted = 0;
  Tx().TxAbort.Click = nullptr;
  Tx().TxAbort.Click = [&] { ++aborted; };
  OpenTxSetup();
  // As while the modem is programmed.
  loop.RunStep([this] { Tx().TxAbort.Enabled = false; });
  Map()->setFocus();
  QTest::keyClick(Map(), Qt::Key_Escape);
  EXPECT_EQ(aborted, 0);
  EXPECT_TRUE(Find<>(*window, "Frame4")->isVisible());
}

TEST_F(ScrollingPanelTest, EscInAFieldLeavesItFirst) {
  int aborted = 0;
  Tx().TxAbort.Click = nullptr;
  Tx().TxAbort.Click = [&] { ++aborted; };
  OpenTxSetup();
  Find<>(*window, "TxPathField")->setFocus();
  QTest::keyClick(window->focusWidget(), Qt::Key_Escape);
  EXPECT_EQ(aborted, 0);
  EXPECT_EQ(window->focusWidget(), Map());
  QTest::keyClick(Map(), Qt::Key_Escape);
  EXPECT_EQ(aborted, 1);
}

TEST_F(ScrollingPanelTest, AnOpenedPanelIsReadyToBeTypedInAndAClosedOneLeavesTheKeysToTheMap) {
  Map()->setFocus();
  OpenTxSetup();
  EXPECT_EQ(window->focusWidget(), Find<>(*window, "TxSsid"));
  Find<>(*window, "InfoField2")->setFocus();
  loop.RunStep([this] { Tx().Frame4.Visible = false; });
  EXPECT_EQ(window->focusWidget(), Map());
}

TEST_F(ScrollingPanelTest, ControlTOpensTxSetupAsTheRightClickDoes) {
  int opened = 0;
  Controls().Transmit.Check6.RightClick = nullptr;
  Controls().Transmit.Check6.RightClick = [&] { ++opened; };
  Map()->setFocus();
  QTest::keyClick(Map(), Qt::Key_T, Qt::ControlModifier);
  EXPECT_EQ(opened, 1);
  EXPECT_FALSE(State().Map.TracksOn);  // the T without Ctrl
  AskForMenu(Find<>(*window, "Check6"), true);
  EXPECT_EQ(opened, 2);
  Find<>(*window, "Text15")->setFocus();
  QTest::keyClick(window->focusWidget(), Qt::Key_T, Qt::ControlModifier);
  EXPECT_EQ(opened, 2);
}

}  // namespace
}  // namespace zepril
