// The list of heard stations on the window: what stands in it, and what a press on a row opens.
#include <QListView>
#include <QPushButton>
#include <QScrollBar>
#include <QTabWidget>

#include "tests/desktop/main_window_support.h"

namespace zepril {
namespace {

class StationListTest : public MainWindowTest {
 protected:
  QListView* List() { return Find<QListView>(*window, "HeardList"); }
  void Open() { QTest::mouseClick(Find<QPushButton>(*window, "Command3"), Qt::LeftButton); }
  QString Row(int row) { return List()->model()->index(row, 0).data().toString(); }
  void ClickRow(int row) {
    const QRect at = List()->visualRect(List()->model()->index(row, 0));
    QTest::mouseClick(List()->viewport(), Qt::LeftButton, {}, at.center());
  }
  std::string OpenedCall() { return State().Stores.SelectedStationCall; }
};

TEST_F(StationListTest, TheListIsFullAsSoonAsItIsOpen) {
  Hear("N0AAA", "=5230.00N/01324.00E>Test");
  Hear("N0BBB", "=5231.00N/01324.00E>Test");
  Open();
  ASSERT_TRUE(List()->isVisible());
  ASSERT_EQ(List()->model()->rowCount(), 2);
  EXPECT_TRUE(Row(0).startsWith(QStringLiteral("N0BBB"))) << Row(0).toStdString();
}

TEST_F(StationListTest, APressOpensTheStationThatStandsInTheRow) {
  Hear("N0AAA", "=5230.00N/01324.00E>Test");
  Open();
  Open();  // closed again
  Hear("N0BBB", "=5231.00N/01324.00E>Test");
  Open();
  ASSERT_EQ(List()->model()->rowCount(), 2);
  const std::string shown = Row(0).left(5).toStdString();
  ClickRow(0);
  EXPECT_EQ(OpenedCall(), shown);
  EXPECT_EQ(shown, "N0BBB");
}

// The page of the raw list behind another one of the drawer.
TEST_F(StationListTest, AListBehindAnotherPageIsRenewedWithIt) {
  Resize(780, 700);  // the right column folds into the drawer
  QTest::keyClick(Map(), Qt::Key_R, Qt::ControlModifier);
  auto* drawer = Find<QTabWidget>(*window, "Drawer");
  ASSERT_EQ(drawer->count(), 2);
  auto* raw = Find<QListView>(*window, "RawList");
  drawer->setCurrentIndex(1);
  ASSERT_FALSE(raw->isVisible());
  const int before = raw->model()->rowCount();
  HearStationAtCentre();
  drawer->setCurrentIndex(0);
  ASSERT_TRUE(raw->isVisible());
  EXPECT_EQ(raw->model()->rowCount(), static_cast<int>(Controls().Raw.RawList.Items.size()));
  EXPECT_GT(raw->model()->rowCount(), before);
}

TEST_F(StationListTest, ATickRenewsTheOpenListAndKeepsSelectionAndPlace) {
  for (int station = 0; station < 60; ++station) {
    Hear("N0A" + std::to_string(10 + station), "=5230.00N/01324.00E>Test");
  }
  Open();
  auto* bar = List()->verticalScrollBar();
  ASSERT_GT(bar->maximum(), 20);
  ClickRow(3);
  EXPECT_EQ(OpenedCall(), "N0A66");
  bar->setValue(2);
  const QString top = List()->indexAt(QPoint(2, 2)).data().toString().left(9);
  Hear("N0NEW", "=5230.00N/01324.00E>Test");
  Tick();  // one that took long leaves it to the next
  ASSERT_EQ(List()->model()->rowCount(), 61);
  EXPECT_TRUE(Row(0).startsWith(QStringLiteral("N0NEW")));
  EXPECT_EQ(List()->currentIndex().row(), 4);
  EXPECT_EQ(List()->indexAt(QPoint(2, 2)).data().toString().left(9), top);
}

TEST_F(StationListTest, WhatTheArrowKeysSelectStaysSelected) {
  for (const char* call : {"N0AAA", "N0BBB", "N0CCC"})
    Hear(call, "=5230.00N/01324.00E>Test");
  QTest::keyClick(Map(), Qt::Key_L, Qt::ControlModifier);
  ASSERT_EQ(window->focusWidget(), List());
  QTest::keyClick(List(), Qt::Key_Down);
  QTest::keyClick(List(), Qt::Key_Down);
  const QString selected = List()->currentIndex().data().toString().left(9);
  Hear("N0DDD", "=5230.00N/01324.00E>Test");
  Tick();
  EXPECT_EQ(List()->currentIndex().data().toString().left(9), selected);
  QTest::keyClick(List(), Qt::Key_Return);
  EXPECT_EQ(QString::fromStdString(OpenedCall()), selected.trimmed());
}

TEST_F(StationListTest, ATickUnderAPressDoesNotChangeWhatItOpens) {
  Hear("N0AAA", "=5230.00N/01324.00E>Test");
  Hear("N0BBB", "=5230.00N/01324.00E>Test");
  Open();
  const QPoint at = List()->visualRect(List()->model()->index(1, 0)).center();
  QTest::mousePress(List()->viewport(), Qt::LeftButton, {}, at);
  Hear("N0CCC", "=5230.00N/01324.00E>Test");
  QTest::mouseRelease(List()->viewport(), Qt::LeftButton, {}, at);
  EXPECT_EQ(OpenedCall(), "N0AAA");
  Tick();
  Tick();
  EXPECT_EQ(List()->model()->rowCount(), 3);
}

TEST_F(StationListTest, TheColumnsOrderIt) {
  Hear("N0BBB", "=5230.00N/01324.00E>Test");
  Hear("N0AAA", "=5330.00N/01324.00E>Test");
  Open();
  QTest::mouseClick(Find<>(*window, "HeardOrder2"), Qt::LeftButton);
  EXPECT_TRUE(Row(0).startsWith(QStringLiteral("N0BBB"))) << Row(0).toStdString();
  QTest::mouseClick(Find<>(*window, "HeardOrder2"), Qt::LeftButton);
  EXPECT_TRUE(Row(0).startsWith(QStringLiteral("N0AAA"))) << Row(0).toStdString();
  EXPECT_TRUE(Find<QPushButton>(*window, "HeardOrder2")->isChecked());
  // Every column is seen whole.
  const int row_width = List()->fontMetrics().horizontalAdvance(Row(0));
  EXPECT_GE(List()->viewport()->width(), row_width);
}

TEST_F(StationListTest, CtrlLOpensAndClosesIt) {
  QTest::keyClick(Map(), Qt::Key_L, Qt::ControlModifier);
  EXPECT_TRUE(List()->isVisible());
  QTest::keyClick(List(), Qt::Key_L, Qt::ControlModifier);
  EXPECT_FALSE(List()->isVisible());
  EXPECT_EQ(window->focusWidget(), Map());
}

TEST_F(StationListTest, TheButtonsOfAnOpenRecordStayFree) {
  for (const QSize size : {QSize(1280, 800), QSize(800, 600), QSize(640, 480)}) {
    Resize(size.width(), size.height());
    Hear("N0AAA", "=5230.00N/01324.00E>Test of a long text over the whole record");
    if (!Controls().MoniAll.HeardPanel.Visible) {
      loop.RunStep([this] { Controls().MoniAll.Command3.Click(); });
    }
    ClickRow(0);
    Pump();
    ASSERT_TRUE(Controls().Record.Frame1.Visible);
    for (const char* name : {"Command18", "Command19", "Command11", "Command36", "Command23"}) {
      auto* button = Find<>(*window, name);
      const QPoint middle = button->mapTo(Map(), button->rect().center());
      EXPECT_EQ(Map()->childAt(middle), button) << name << " at " << size.width();
    }
  }
}

}  // namespace
}  // namespace zepril
