// Lists of rows: a row that is pressed comes in, rows go out and stand still under the hand.
#include "desktop/binder.h"

#include <QListView>
#include <QStringListModel>

#include "tests/desktop/binder_support.h"

namespace zepril {
namespace {

TEST_F(BinderTest, RowsStandStillWhileTheMouseAims) {
  ListBox list;
  list.Items = {"one", "two", "three"};
  QStringListModel rows;
  auto* widget = Place(new QListView);
  binder.Bind(widget, &rows, list);
  Show();
  EXPECT_FALSE(list.Held);
  QTest::mouseMove(widget->viewport(), QPoint(10, 10));
  Pump();
  EXPECT_TRUE(list.Held);
}

TEST_F(BinderTest, ARowOfAListIsPressed) {
  ListBox control;
  control.Items = {"first", "second", "third"};
  int clicks = 0;
  control.Click = Counted(clicks);
  QStringListModel model;
  auto* widget = Place(new QListView);
  binder.Bind(widget, &model, control);
  Show();
  loop.RunStep([] {});
  ASSERT_EQ(model.rowCount(), 3);
  QTest::mouseClick(widget->viewport(), Qt::LeftButton, {},
                    widget->visualRect(model.index(1, 0)).center());
  EXPECT_EQ(control.ListIndex, 1);
  EXPECT_EQ(clicks, 1);
  loop.RunStep([&] {
    control.Items.push_back("fourth");
    ++control.Revision;
    control.ListIndex = 3;
    control.TopIndex = 3;
  });
  EXPECT_EQ(model.rowCount(), 4);
  EXPECT_EQ(widget->currentIndex().row(), 3);
  EXPECT_EQ(clicks, 1);
}

// ---- Fields ---------------------------------------------------------------------------------

// A press that came while the program waited acts behind that, when the rows may be others.
TEST_F(BinderTest, APressKeptOverAWaitMeansTheRowThatWasPressed) {
  auto* widget = Place(new QListView);
  QStringListModel model;
  ListBox control;
  control.Items = {"one", "two", "three"};
  std::string opened;
  control.Click = [&] { opened = control.Items[static_cast<std::size_t>(control.ListIndex)]; };
  binder.Bind(widget, &model, control);
  Show();
  loop.RunStep([this] { loop.Wait(0.0); });
  const QPoint at = widget->visualRect(model.index(1, 0)).center();
  QTest::mouseClick(widget->viewport(), Qt::LeftButton, {}, at);
  ASSERT_EQ(opened, "");
  loop.RunStep([&] {
    control.Items.insert(control.Items.begin(), "new");
    ++control.ListIndex;  // the selection goes with its row
    ++control.Revision;
  });
  ASSERT_TRUE(PumpUntil([&] { return !opened.empty(); }));
  EXPECT_EQ(opened, "two");
}

}  // namespace
}  // namespace zepril
