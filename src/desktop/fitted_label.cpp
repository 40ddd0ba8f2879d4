// Cuts the text into lines by its measured width, and paints them.
#include "desktop/fitted_label.h"

#include <QFontMetrics>
#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>
#include <QToolTip>

namespace zepril {
namespace {

// How many characters of `text` fit into `width` pixels, at least one.
qsizetype FittingLength(const QString& text, const QFontMetrics& metrics, int width) {
  qsizetype length = text.size();
  while (length > 1 && metrics.horizontalAdvance(text.left(length)) > width)
    --length;
  return length;
}

}  // namespace

FittedLabel::FittedLabel(int most_lines, QWidget* parent)
    : QLabel(parent), most_lines_(most_lines) {
  setTextFormat(Qt::PlainText);
  setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Minimum);
}

QStringList FittedLabel::Lines() const {
  const QFontMetrics metrics(font());
  const int width = contentsRect().width();
  QStringList lines;
  QString rest = text();
  while (!rest.isEmpty() && lines.size() + 1 < most_lines_) {
    const qsizetype length = FittingLength(rest, metrics, width);
    lines.append(rest.left(length));
    rest = rest.mid(length);
  }
  if (!rest.isEmpty()) lines.append(metrics.elidedText(rest, Qt::ElideRight, width));
  return lines;
}

bool FittedLabel::IsCut() const {
  return Lines().join(QString()) != text();
}

QSize FittedLabel::sizeHint() const {
  const QMargins around = contentsMargins();
  return {QLabel::sizeHint().width(),
          most_lines_ * QFontMetrics(font()).lineSpacing() + around.top() + around.bottom()};
}

QSize FittedLabel::minimumSizeHint() const {
  return {0, sizeHint().height()};
}

void FittedLabel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  QStyleOption option;
  option.initFrom(this);
  style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, this);
  painter.setPen(palette().color(foregroundRole()));
  const QFontMetrics metrics(font());
  const QRect room = contentsRect();
  const QStringList lines = Lines();
  const int free = room.height() - static_cast<int>(lines.size()) * metrics.lineSpacing();
  int y = room.top() + (alignment().testFlag(Qt::AlignVCenter) ? std::max(free, 0) / 2 : 0);
  for (const QString& line : lines) {
    painter.drawText(room.left(), y + metrics.ascent(), line);
    y += metrics.lineSpacing();
  }
}

bool FittedLabel::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip || !IsCut()) return QLabel::event(event);
  QString tip = text();
  if (!toolTip().isEmpty()) tip += QLatin1Char('\n') + toolTip();
  QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), tip, this);
  return true;
}

}  // namespace zepril
