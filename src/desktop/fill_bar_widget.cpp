// Paints the bar as far as it is filled.
#include "desktop/fill_bar_widget.h"

#include <QPainter>

#include <algorithm>

namespace zepril {

FillBarWidget::FillBarWidget(QWidget* parent) : QWidget(parent) {
  setFixedHeight(6);
}

void FillBarWidget::Show(int filled, int full, const QColor& colour) {
  if (filled == filled_ && full == full_ && colour == colour_) return;
  filled_ = filled;
  full_ = std::max(full, 1);
  colour_ = colour;
  update();
}

void FillBarWidget::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), palette().color(QPalette::Base));
  const int used = std::clamp(filled_, 0, full_) * width() / full_;
  painter.fillRect(0, 0, used, height(), colour_);
}

}  // namespace zepril
