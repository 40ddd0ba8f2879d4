// The list of heard stations on the window: what stands in it, and what a press on a row opens.
#include <QListView>
#include <QPushButton>
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

}  // namespace
}  // namespace zepril
