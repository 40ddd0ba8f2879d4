#include "desktop/scale_row.h"

#include <QAbstractButton>
#include <QBoxLayout>
#include <QComboBox>
#include <QPainter>

namespace zepril {
namespace {

// The frame box: ticked with a cross, filled where tiles are.
class FrameBoxButton final : public QAbstractButton {
 public:
  explicit FrameBoxButton(const Look& look) : look_(look) {
    setCheckable(true);
    setFixedSize(18, 18);
    setFocusPolicy(Qt::TabFocus);
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    const QRect box = rect().adjusted(2, 2, -3, -3);
    painter.setPen(QPen(hasFocus() ? look_.Text : look_.Dim, 1));
    painter.setBrush(property("covered").toBool() ? QBrush(look_.Accent) : QBrush(look_.Field));
    painter.drawRect(box);
    if (!isChecked()) return;
    painter.setPen(QPen(look_.Text, 2));
    painter.drawLine(box.topLeft() + QPoint(3, 3), box.bottomRight() - QPoint(2, 2));
    painter.drawLine(box.topRight() + QPoint(-2, 3), box.bottomLeft() + QPoint(3, -2));
  }

 private:
  const Look& look_;
};

}  // namespace

ScaleRow::ScaleRow(const QString& folder_name, const Look& look, QWidget* parent)
    : QWidget(parent), look_(look), box_(new FrameBoxButton(look)), folders_(new QComboBox) {
  box_->setObjectName(folder_name + QStringLiteral("Frames"));
  box_->setAccessibleName(QStringLiteral("tile frames"));
  folders_->setObjectName(folder_name);
  folders_->setAccessibleName(QStringLiteral("map folder"));
  folders_->setFixedHeight(24);
  folders_->setMinimumWidth(0);
  folders_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  folders_->setFocusPolicy(Qt::TabFocus);
  auto* row = new QBoxLayout(QBoxLayout::LeftToRight, this);
  row->setContentsMargins(8, 0, 0, 0);
  row->setSpacing(4);
  row->addWidget(box_);
  row->addWidget(folders_, 1);
}

void ScaleRow::Show(bool covered, bool active) {
  if (covered != covered_) {
    covered_ = covered;
    box_->setProperty("covered", covered);
    box_->update();
  }
  if (active != active_) {
    active_ = active;
    update();
  }
}

void ScaleRow::paintEvent(QPaintEvent*) {
  if (!active_) return;
  QPainter painter(this);
  painter.fillRect(0, 2, 4, height() - 4, look_.Text);
}

}  // namespace zepril
