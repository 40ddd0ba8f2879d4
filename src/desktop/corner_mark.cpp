// Paints both kinds of mark, and keeps each at its place when the control changes its size.
#include "desktop/corner_mark.h"

#include <QEvent>
#include <QPainter>
#include <QPolygon>

namespace zepril {
namespace {

constexpr int kSize = 6;
constexpr int kDropWidth = 10;

}  // namespace

CornerMark::CornerMark(QWidget* owner, MarkKind kind) : QWidget(owner), kind_(kind) {
  setAttribute(Qt::WA_TransparentForMouseEvents);
  setFixedSize(kind == MarkKind::RightClick ? QSize(kSize, kSize) : QSize(kDropWidth, kSize));
  owner->installEventFilter(this);
  Place();
}

void CornerMark::Place() {
  const int x = parentWidget()->width() - width();
  if (kind_ == MarkKind::RightClick) {
    move(x - 2, 2);
  } else {
    move(x - kSize, (parentWidget()->height() - height()) / 2);
  }
}

bool CornerMark::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Resize) Place();
  return QWidget::eventFilter(watched, event);
}

void CornerMark::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  if (kind_ == MarkKind::DropDown) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(palette().color(QPalette::PlaceholderText), 1.5));
    painter.drawPolyline(QPolygonF({{1.5, 1}, {5, 4.5}, {8.5, 1}}));
    return;
  }
  painter.setPen(Qt::NoPen);
  painter.setBrush(palette().color(QPalette::PlaceholderText));
  painter.drawPolygon(QPolygon({{0, 0}, {kSize, 0}, {kSize, kSize}}));
}

}  // namespace zepril
