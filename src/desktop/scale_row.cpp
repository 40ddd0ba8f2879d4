// Paints the bar and the frame box of a row, and the legend that says what they tell.
#include "desktop/scale_row.h"

#include <QAbstractButton>
#include <QBoxLayout>
#include <QComboBox>
#include <QPainter>

#include <algorithm>

#include "core/texts/window_texts.h"
#include "platform/qt/text.h"

namespace zepril {
namespace {

constexpr int kLegendHeight = 18;
constexpr int kLegendLeft = 4;
constexpr int kLegendBox = 13;
constexpr int kLegendText = 17;  // from the left edge of its box
constexpr int kLegendGap = 8;

void PaintFrameBox(QPainter& painter, const QRect& box, const Look& look, bool covered,
                   bool checked, bool focused) {
  painter.setPen(QPen(focused ? look.Text : look.Dim, focused ? 2 : 1));
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

ScaleRow::ScaleRow(const Look& look, QWidget* parent)
    : QWidget(parent), look_(look), box_(new FrameBoxButton(look)), folders_(new QComboBox) {
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
  setAccessibleName(ToQt(window_texts::kScaleLegend));
}

ScaleLegend::Places ScaleLegend::PlacesIn(int width, const QFontMetrics& metrics) {
  Places places;
  places.First = kLegendLeft;
  places.FirstEnd =
      kLegendLeft + kLegendText + metrics.horizontalAdvance(ToQt(window_texts::kTilesHere));
  // In the middle where there is room, never into the first.
  places.Second = std::max(width / 2 + kLegendGap, places.FirstEnd + kLegendGap);
  const int length = kLegendText + metrics.horizontalAdvance(ToQt(window_texts::kFrames));
  if (places.Second + length > width) places.Second = places.FirstEnd + kLegendGap;
  places.SecondEnd = places.Second + length;
  return places;
}

void ScaleLegend::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const auto entry = [&](int x, Text text, bool covered, bool checked) {
    PaintFrameBox(painter, QRect(x, 2, kLegendBox, kLegendBox), look_, covered, checked, false);
    painter.setPen(look_.Dim);
    painter.drawText(QRect(x + kLegendText, 0, width(), height()), Qt::AlignLeft | Qt::AlignVCenter,
                     ToQt(text));
  };
  const Places places = PlacesIn(width(), fontMetrics());
  entry(places.First, window_texts::kTilesHere, true, false);
  entry(places.Second, window_texts::kFrames, false, true);
}

}  // namespace zepril
