// The map on the window: shows what was painted on the map surface and hands presses, moves and
// keys to the map's control. On a screen of a higher scale each pixel of the map becomes a block,
// so that nothing is blurred. Panels that belong to the map lie over it as children.
#pragma once

#include <QPointF>
#include <QWidget>

#include <functional>

#include "core/controls.h"
#include "desktop/focus_watch.h"
#include "platform/event.h"
#include "platform/qt/qt_loop.h"
#include "platform/qt/qt_surface.h"

class QPainter;

namespace zepril {

class MapWidget final : public QWidget {
 public:
  MapWidget(QtLoop& loop, PictureBox& map, PictureBox& base, QtSurface& map_surface,
            QtSurface& base_surface, QWidget* parent = nullptr);

  // Told with the new size after the surfaces have it.
  Event<int, int> Resized;
  // Told after a resize, to place what lies over the map.
  Event<> PlaceOverlays;
  // Told of turns of the wheel: over 0 away from the operator.
  Event<int> Wheel;
  // The pointer of the arrow keys, in pixels of the map: where the mouse was last, or where they
  // brought it.
  std::function<QPointF()> Pointer;
  // Shows the map or the plain form under it, as the controls say.
  void ControlsOut();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  MousePress PressOf(const QMouseEvent& event) const;
  void TakeFocusUnlessTyping();
  void TakeSize();
  void ShowPointer();
  void PressRightAtPointer();
  QPoint PointerPlace() const;
  void DrawPointer(QPainter& painter) const;

  QtLoop& loop_;
  PictureBox& map_;
  PictureBox& base_;
  QtSurface& map_surface_;
  QtSurface& base_surface_;
  FocusWatch focus_;
  std::uint64_t shown_revision_ = 0;
  bool shown_visible_ = true;
  bool size_waits_ = false;  // a new size came inside a step
  bool by_keys_ = false;     // the pointer was moved by them, and not by the mouse since
  int wheel_angle_ = 0;      // eighths of a degree that are no whole step yet
};

}  // namespace zepril
