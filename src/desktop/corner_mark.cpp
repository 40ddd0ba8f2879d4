#include "desktop/corner_mark.h"

#include <QEvent>
#include <QPainter>
#include <QPolygon>

namespace zepril {
namespace {

constexpr int kSize = 6;

}  // namespace

CornerMark::CornerMark(QWidget* owner) : QWidget(owner) {
  setAttribute(Qt::WA_TransparentForMouseEvents);
  setFixedSize(kSize, kSize);
  owner->installEventFilter(this);
  Place();
}

void CornerMark::Place() {
  move(parentWidget()->width() - kSize - 2, 2);
}

bool CornerMark::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Resize) Place();
  return QWidget::eventFilter(watched, event);
}

void CornerMark::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setPen(Qt::NoPen);
  painter.setBrush(palette().color(QPalette::PlaceholderText));
  painter.drawPolygon(QPolygon({{0, 0}, {kSize, 0}, {kSize, kSize}}));
}

}  // namespace zepril
