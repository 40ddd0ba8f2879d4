// Paints the four forms of the lamp.
#include "desktop/lamp_widget.h"

#include <QPainter>

#include "core/texts/window_texts.h"
#include "platform/qt/text.h"

namespace zepril {

LampWidget::LampWidget(QWidget* parent) : QWidget(parent) {
  setFixedSize(16, 16);
  setObjectName(QStringLiteral("LinkLamp"));
}

void LampWidget::Show(const LinkLamp& lamp) {
  setToolTip(ToQt(lamp.ToolTip));
  Text name = window_texts::kLampNone;
  if (lamp.State == LampState::Data) name = window_texts::kLampData;
  if (lamp.State == LampState::Silent) name = window_texts::kLampSilent;
  if (lamp.State == LampState::Lost) name = window_texts::kLampLost;
  if (lamp.State == LampState::Paused) name = window_texts::kLampPaused;
  setAccessibleName(ToQt(name));
  if (state_ == lamp.State) return;
  state_ = lamp.State;
  update();
}

void LampWidget::paintEvent(QPaintEvent*) {
  if (state_ == LampState::None) return;
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QColor ink = palette().color(QPalette::WindowText);
  const QRectF disc(2.5, 2.5, 11.0, 11.0);
  if (state_ == LampState::Paused) {
    painter.fillRect(QRectF(4.0, 3.0, 3.0, 10.0), ink);
    painter.fillRect(QRectF(9.0, 3.0, 3.0, 10.0), ink);
    return;
  }
  painter.setPen(QPen(ink, 1.5));
  painter.setBrush(state_ == LampState::Data ? QBrush(ink) : QBrush(Qt::NoBrush));
  painter.drawEllipse(disc);
  if (state_ == LampState::Silent) {
    painter.setBrush(ink);
    painter.drawPie(disc, 180 * 16, 180 * 16);
  }
  if (state_ == LampState::Lost) {
    painter.drawLine(QPointF(4.5, 4.5), QPointF(11.5, 11.5));
    painter.drawLine(QPointF(11.5, 4.5), QPointF(4.5, 11.5));
  }
}

}  // namespace zepril
