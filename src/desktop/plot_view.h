// A small drawing that the program paints itself: each pixel as it was painted, a block of them
// where it is shown larger or on a screen of a higher scale. Presses go through to what lies below.
#pragma once

#include <QWidget>

#include "core/controls.h"
#include "platform/qt/qt_surface.h"

namespace zepril {

class PlotView final : public QWidget {
 public:
  // Both must outlive the widget. `scale`: how many times as wide and high it is shown.
  PlotView(const PictureBox& control, const QtSurface& surface, int scale = 1);

  // Repaints when the drawing has changed since the last call.
  void ControlsOut();

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  const PictureBox& control_;
  const QtSurface& surface_;
  std::uint64_t shown_revision_ = 0;
};

}  // namespace zepril
