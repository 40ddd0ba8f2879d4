// Lists of rows, which stand still under the hand.
#include "desktop/binder.h"

#include <QApplication>
#include <QListView>
#include <QScopeGuard>
#include <QScrollBar>
#include <QStringListModel>
#include <QTimer>

#include <algorithm>

#include "desktop/right_hold.h"
#include "platform/qt/text.h"

namespace zepril {
namespace {

constexpr int kAimMilliseconds = 1500;  // from the last move of the mouse

}  // namespace

void Binder::Bind(QListView* widget, QStringListModel* model, ListBox& control) {
  BindCommon(widget, control);
  new RightHold(widget, loop_, control, this);
  widget->setModel(model);
  connect(widget, &QListView::clicked, this, [this, &control](const QModelIndex& index) {
    // Noted at once: a press that is kept while the program waits opens the row that was pressed,
    // wherever a renewal puts it meanwhile.
    control.ListIndex = index.row();
    Press(control, control.Click);
  });
  connect(widget, &QListView::activated, this, [this, &control](const QModelIndex& index) {
    control.ListIndex = index.row();
    Press(control, control.DoubleClick ? control.DoubleClick : control.Click);
  });
  BindPlace(widget, control);
  // What is not shown is passed over by what the list itself is told, never by what the window
  // happens to show: its panel may come a moment later, its page any time, with rows of before.
  outs_.push_back(
      [widget, model, &control, revision = ~std::uint64_t{0}, row = -1, top = -1]() mutable {
        if (!control.Visible) return;
        // What moves here is no work of the operator's.
        widget->setProperty("quiet", true);
        const auto loud = qScopeGuard([widget] { widget->setProperty("quiet", false); });
        if (revision != control.Revision ||
            model->rowCount() != static_cast<int>(control.Items.size())) {
          revision = control.Revision;
          QStringList lines;
          lines.reserve(static_cast<qsizetype>(control.Items.size()));
          for (const std::string& item : control.Items)
            lines.append(ToQt(item));
          model->setStringList(lines);
          row = -1;
          top = -1;
        }
        if (row == control.ListIndex && top == control.TopIndex) return;
        row = control.ListIndex;
        const QModelIndex index = model->index(row, 0);
        widget->setCurrentIndex(index);
        if (top != control.TopIndex) {
          top = control.TopIndex;
          const QModelIndex shown = model->index(std::min(top, model->rowCount() - 1), 0);
          if (shown.isValid()) widget->scrollTo(shown, QAbstractItemView::PositionAtTop);
        }
      });
}

// Where the operator goes in a list by keys, wheel and bar: the next renewal keeps to it.
void Binder::BindPlace(QListView* widget, ListBox& control) {
  const auto quiet = [widget] { return widget->property("quiet").toBool(); };
  connect(widget->selectionModel(), &QItemSelectionModel::currentChanged, this,
          [quiet, &control](const QModelIndex& now) {
            if (!quiet() && now.isValid()) control.ListIndex = now.row();
          });
  connect(widget->verticalScrollBar(), &QScrollBar::valueChanged, this,
          [quiet, &control](int first_row) {
            if (!quiet()) control.TopIndex = first_row;
          });
  Watched row{widget->viewport(), &control, nullptr, false};
  row.List = &control;
  watched_.push_back(row);
  widget->viewport()->installEventFilter(this);
  widget->viewport()->setMouseTracking(true);
}

// While the operator aims, the rows stay where he sees them.
void Binder::AimAt(ListBox& list) {
  list.Held = true;
  const int aim = ++aims_;
  QTimer::singleShot(kAimMilliseconds, this, [this, aim, &list] {
    if (aim == aims_ && QApplication::mouseButtons() == Qt::NoButton) list.Held = false;
  });
}

void Binder::NoteHold(const Watched& row, bool held) {
  if (row.List != nullptr) row.List->Held = held;
}

}  // namespace zepril
