#include "desktop/scale_row.h"

#include <QAbstractButton>
#include <QBoxLayout>
#include <QComboBox>
#include <QPainter>

namespace zepril {
namespace {

constexpr int kLegendHeight = 18;

void PaintFrameBox(QPainter& painter, const QRect& box, const Look& look, bool covered,
                   bool checked, bool focused) {
  painter.setPen(QPen(focused ? look.Text : look.Dim, 1));
  painter.setBrush(covered ? QBrush(look.Accent) : QBrush(look.Field));
  painter.drawRect(box);
  if (!checked) return;
  painter.setPen(QPen(look.Text, 2));
  painter.drawLine(box.topLeft() + QPoint(3, 3), box.bottomRight() - QPoint(2, 2));
  painter.drawLine(box.topRight() + QPoint(-2, 3), box.bottomLeft() + QPoint(3, -2));
}

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
    PaintFrameBox(painter, rect().adjusted(2, 2, -3, -3), look_, property("covered").toBool(),
                  isChecked(), hasFocus());
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

ScaleLegend::ScaleLegend(const Look& look, QWidget* parent) : QWidget(parent), look_(look) {
  setFixedHeight(kLegendHeight);
  setAccessibleName(QStringLiteral("filled: tiles at the center, ticked: tile frames"));
}

void ScaleLegend::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const auto entry = [&](int x, const QString& text, bool covered, bool checked) {
    PaintFrameBox(painter, QRect(x, 2, 13, 13), look_, covered, checked, false);
    painter.setPen(look_.Dim);
    painter.drawText(QRect(x + 18, 0, width(), height()), Qt::AlignLeft | Qt::AlignVCenter, text);
  };
  entry(10, QStringLiteral("tiles here"), true, false);
  entry(width() / 2 + 8, QStringLiteral("frames"), false, true);
}

}  // namespace zepril
