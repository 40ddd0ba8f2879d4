// Paints the plot unfiltered whenever it has changed.
#include "desktop/plot_view.h"

#include <QPainter>

#include "desktop/control_access.h"

namespace zepril {

PlotView::PlotView(const PictureBox& control, const QtSurface& surface, int scale)
    : control_(control), surface_(surface) {
  NameAfter(this, control);
  setFixedSize(surface.Picture().size() * scale);
  setAttribute(Qt::WA_OpaquePaintEvent);
  setAttribute(Qt::WA_TransparentForMouseEvents);
}

void PlotView::ControlsOut() {
  if (shown_revision_ == control_.Revision) return;
  shown_revision_ = control_.Revision;
  update();
}

void PlotView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.drawImage(rect(), surface_.Picture());  // unfiltered
}

}  // namespace zepril
