#include "desktop/plot_view.h"

#include <QPainter>

namespace zepril {

PlotView::PlotView(const PictureBox& control, const QtSurface& surface, QWidget* parent)
    : QWidget(parent), control_(control), surface_(surface) {
  setFixedSize(surface.Picture().size());
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
  painter.drawImage(0, 0, surface_.Picture());
}

}  // namespace zepril
