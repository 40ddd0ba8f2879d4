// Paints the switch with its frame, notch and dimmed form.
#include "desktop/class_button.h"

#include <QPainter>

namespace zepril {

ClassButton::ClassButton(const Look& look, QWidget* parent) : QToolButton(parent), look_(look) {
  setCheckable(true);
  setFocusPolicy(Qt::TabFocus);
  setMinimumWidth(24);
}

void ClassButton::SetFill(const QColor& fill) {
  if (fill == fill_) return;
  fill_ = fill;
  update();
}

void ClassButton::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const QRect frame = rect().adjusted(0, 0, -1, -1);
  painter.setPen(hasFocus() ? look_.Text : (isChecked() ? look_.Dim : look_.Line));
  painter.setBrush(fill_.isValid() ? fill_ : (isChecked() ? look_.Accent : look_.Field));
  painter.drawRoundedRect(frame, 3, 3);
  if (!fill_.isValid()) {
    painter.setOpacity(isChecked() ? 1.0 : 0.35);
    icon().paint(&painter, rect().adjusted(4, 4, -4, -4));
    painter.setOpacity(1.0);
  } else if (isChecked()) {
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(TextOn(fill_), 2));
    painter.drawRoundedRect(frame.adjusted(2, 2, -2, -2), 2, 2);
  }
  if (hasFocus()) {
    // Also on one that is on: a second frame inside.
    painter.setBrush(Qt::NoBrush);
    painter.setPen(fill_.isValid() ? TextOn(fill_) : look_.Text);
    painter.drawRoundedRect(frame.adjusted(1, 1, -1, -1), 2, 2);
  }
  if (property("third_state").toBool()) {
    // Only if moved: an arrow at the corner.
    painter.setPen(QPen(look_.Text, 1.5));
    painter.drawLine(width() - 9, height() - 4, width() - 4, height() - 4);
    painter.drawLine(width() - 6, height() - 6, width() - 4, height() - 4);
    painter.drawLine(width() - 6, height() - 2, width() - 4, height() - 4);
  }
}

}  // namespace zepril
