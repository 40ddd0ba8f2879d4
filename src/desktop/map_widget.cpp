// Paints the map's image and its pointer; mouse, wheel and keys become the control's events.
#include "desktop/map_widget.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

#include <algorithm>
#include <utility>

#include "core/keys.h"
#include "desktop/control_access.h"
#include "desktop/keys.h"
#include "platform/qt/text.h"

namespace zepril {
namespace {

constexpr int kWheelStep = 120;  // eighths of a degree
constexpr int kPointerArm = 7;   // pixels

}  // namespace

MapWidget::MapWidget(QtLoop& loop, PictureBox& map, PictureBox& base, QtSurface& map_surface,
                     QtSurface& base_surface, QWidget* parent)
    : QWidget(parent),
      loop_(loop),
      map_(map),
      base_(base),
      map_surface_(map_surface),
      base_surface_(base_surface) {
  NameAfter(this, map_);
  setMouseTracking(true);
  setFocusPolicy(Qt::StrongFocus);
  setAttribute(Qt::WA_OpaquePaintEvent);
  setCursor(Qt::CrossCursor);
  SetAccessibleRole(this, QAccessible::Graphic);
}

void MapWidget::ControlsOut() {
  if (size_waits_ && !loop_.InStep()) TakeSize();
  TakeFocusUnlessTyping();
  ShowPointer();
  const QString tip = ToQt(map_.ToolTip);
  if (toolTip() != tip) setToolTip(tip);
  if (shown_revision_ == map_.Revision && shown_visible_ == map_.Visible) return;
  shown_revision_ = map_.Revision;
  shown_visible_ = map_.Visible;
  update();
}

// Every redraw asks for the focus: it must not be taken from where the operator types or went by
// the keyboard.
void MapWidget::TakeFocusUnlessTyping() {
  if (!map_.FocusWanted) return;
  map_.FocusWanted = false;
  if (!focus_.Keeps(window()->focusWidget())) setFocus(Qt::OtherFocusReason);
}

void MapWidget::ShowPointer() {
  const auto shape = map_.Pointer == PointerShape::Hourglass ? Qt::WaitCursor : Qt::CrossCursor;
  if (cursor().shape() != shape) setCursor(shape);
}

void MapWidget::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  // While the map is hidden the plain form under it is seen.
  painter.drawImage(rect(), map_.Visible ? map_surface_.Picture() : base_surface_.Picture());
  if (by_keys_ && hasFocus()) DrawPointer(painter);
}

QPoint MapWidget::PointerPlace() const {
  const QPointF at = Pointer ? Pointer() : QPointF();
  return {std::clamp(qRound(at.x()), 0, std::max(width() - 1, 0)),
          std::clamp(qRound(at.y()), 0, std::max(height() - 1, 0))};
}

// Where the desktop does not let the mouse be moved this is all that is seen of it: white on black,
// so that it shows on every map.
void MapWidget::DrawPointer(QPainter& painter) const {
  const QPoint at = PointerPlace();
  const QPoint across(kPointerArm, 0);
  const QPoint down(0, kPointerArm);
  for (const auto& [colour, thick] : {std::pair{Qt::black, 3}, std::pair{Qt::white, 1}}) {
    painter.setPen(QPen(colour, thick));
    painter.drawLine(at - across, at + across);
    painter.drawLine(at - down, at + down);
  }
}

void MapWidget::resizeEvent(QResizeEvent*) {
  if (width() < 1 || height() < 1) return;
  if (PlaceOverlays) PlaceOverlays();
  size_waits_ = true;
  if (!loop_.InStep()) TakeSize();
}

// A step under way, which may be painting, keeps its surfaces: meanwhile the old picture is shown
// stretched.
void MapWidget::TakeSize() {
  size_waits_ = false;
  map_surface_.Resize(width(), height());
  base_surface_.Resize(width(), height());
  if (Resized) Resized(width(), height());
}

MousePress MapWidget::PressOf(const QMouseEvent& event) const {
  MousePress press;
  press.Button = event.button() == Qt::RightButton ? 2 : 1;
  press.X = event.position().x();
  press.Y = event.position().y();
  return press;
}

void MapWidget::mousePressEvent(QMouseEvent* event) {
  by_keys_ = false;
  if (event->button() != Qt::LeftButton && event->button() != Qt::RightButton) return;
  const MousePress press = PressOf(*event);
  if (!map_.MouseDown) return;
  loop_.Press(&map_.MouseDown, map_.PressesInWaits, [this, press] { map_.MouseDown(press); });
}

void MapWidget::mouseReleaseEvent(QMouseEvent* event) {
  const MousePress press = PressOf(*event);
  if (!map_.MouseUp) return;
  // What was pressed is let go in any case.
  loop_.Press(nullptr, Presses::OneKept, [this, press] { map_.MouseUp(press); });
}

void MapWidget::mouseMoveEvent(QMouseEvent* event) {
  // The mouse that the arrow keys moved along tells so itself.
  if (event->position().toPoint() != PointerPlace()) by_keys_ = false;
  const MousePress press = PressOf(*event);
  if (map_.MouseMove) loop_.RunStep([&] { map_.MouseMove(press); });
}

void MapWidget::wheelEvent(QWheelEvent* event) {
  wheel_angle_ += event->angleDelta().y();
  const int steps = wheel_angle_ / kWheelStep;
  wheel_angle_ -= steps * kWheelStep;
  event->accept();
  if (steps != 0 && Wheel) Wheel(steps);
}

void MapWidget::keyPressEvent(QKeyEvent* event) {
  // What a panel over the map has no use for comes up here too: it is not meant for the map.
  if (!hasFocus()) return QWidget::keyPressEvent(event);
  const KeyPress key = KeyPressOf(*event);
  const bool is_press = IsRightClickKey(*event) || key.Code == kEnterKey;
  if (is_press && event->isAutoRepeat()) return;
  if (IsRightClickKey(*event)) return PressRightAtPointer();
  const bool ours = key.Code == kEnterKey || IsArrowKey(key.Code);
  if (!ours || !map_.KeyDown) {
    QWidget::keyPressEvent(event);
    return;
  }
  if (key.Code != kEnterKey) by_keys_ = true;
  loop_.Press(&map_.KeyDown, map_.PressesInWaits, [this, key] { map_.KeyDown(key); });
  update();
}

void MapWidget::contextMenuEvent(QContextMenuEvent* event) {
  // The mouse has had its press already; the Menu key looks up what lies at the pointer.
  if (event->reason() == QContextMenuEvent::Keyboard && hasFocus()) PressRightAtPointer();
}

void MapWidget::PressRightAtPointer() {
  // Not where the mouse is: where it can't be moved the two part.
  const QPoint at = PointerPlace();
  MousePress press;
  press.Button = 2;
  press.X = at.x();
  press.Y = at.y();
  loop_.Press(&map_, map_.PressesInWaits, [this, press] {
    if (map_.MouseDown) map_.MouseDown(press);
    if (map_.MouseUp) map_.MouseUp(press);
  });
}

void MapWidget::focusInEvent(QFocusEvent* event) {
  map_.HasFocus = true;
  update();
  QWidget::focusInEvent(event);
}

void MapWidget::focusOutEvent(QFocusEvent* event) {
  map_.HasFocus = false;
  update();
  QWidget::focusOutEvent(event);
}

}  // namespace zepril
