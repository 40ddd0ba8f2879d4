// The lines of every icon on a field of 16 units, drawn in the ink that is asked for.
#include "desktop/icons.h"

#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

namespace zepril {
namespace {

constexpr int kSide = 16;
constexpr int kScale = 3;  // drawn large, so that scaled screens have enough pixels
const QColor kStationFill(0xB0, 0x50, 0xD0);

void DrawLines(QPainter& p, std::initializer_list<QLineF> lines) {
  for (const QLineF& line : lines)
    p.drawLine(line);
}

void DrawGlass(QPainter& p) {
  p.drawEllipse(QPointF(7, 7), 4.8, 4.8);
  p.drawLine(QLineF(10.6, 10.6, 14, 14));
}

void DrawClass(QPainter& p, Picture picture) {
  p.setBrush(kStationFill);
  switch (picture) {
    case Picture::ClassMoving:
      p.drawPolygon(QPolygonF({{8, 2}, {14, 8}, {8, 14}, {2, 8}}));
      return;
    case Picture::ClassFixed:
      p.drawRect(QRectF(3, 3, 10, 10));
      return;
    default:
      p.drawEllipse(QPointF(8, 8), 5.5, 5.5);
  }
  if (picture == Picture::ClassSpecial) DrawLines(p, {{8, 7.5, 8, 11}, {8, 4.8, 8, 5.2}});
  if (picture == Picture::ClassWeather) DrawLines(p, {{4.5, 8, 11.5, 8}});
}

// What lies over the map: grid, circles, pictures, track, places, and saving it all.
void DrawLayer(QPainter& p, Picture picture, const QColor& ink) {
  switch (picture) {
    case Picture::Grid:
      DrawLines(p,
                {{1.5, 5, 14.5, 5}, {1.5, 11, 14.5, 11}, {5, 1.5, 5, 14.5}, {11, 1.5, 11, 14.5}});
      return;
    case Picture::Circles:
      p.drawEllipse(QPointF(8, 8), 6.5, 6.5);
      p.drawEllipse(QPointF(8, 8), 3.2, 3.2);
      p.setBrush(ink);
      p.drawEllipse(QPointF(8, 8), 0.4, 0.4);
      return;
    case Picture::Pictures:
      p.drawRect(QRectF(1.5, 3, 13, 10));
      p.drawPolyline(QPolygonF({{2.5, 12}, {6, 7.5}, {8.5, 10.5}, {10.5, 8.5}, {13.5, 12}}));
      p.drawEllipse(QPointF(11, 5.8), 0.9, 0.9);
      return;
    case Picture::Track:
      p.drawPolyline(QPolygonF({{2, 13.5}, {5, 8}, {8.5, 10}, {11, 4.5}, {14, 2.5}}));
      p.setBrush(ink);
      p.drawEllipse(QPointF(14, 2.5), 1, 1);
      return;
    case Picture::Places: {
      QPainterPath pin;
      pin.moveTo(8, 14.5);
      pin.cubicTo(3.5, 9.5, 3, 7.5, 3, 6.2);
      pin.cubicTo(3, 3.5, 5.2, 1.5, 8, 1.5);
      pin.cubicTo(10.8, 1.5, 13, 3.5, 13, 6.2);
      pin.cubicTo(13, 7.5, 12.5, 9.5, 8, 14.5);
      p.drawPath(pin);
      p.drawEllipse(QPointF(8, 6.2), 1.6, 1.6);
      return;
    }
    default:
      // Down into a tray.
      DrawLines(p, {{8, 1.5, 8, 9.5}, {4.5, 6.5, 8, 10}, {11.5, 6.5, 8, 10}});
      p.drawPolyline(QPolygonF({{2, 9.5}, {2, 14}, {14, 14}, {14, 9.5}}));
  }
}

void Draw(QPainter& p, Picture picture, const QColor& ink) {
  switch (picture) {
    case Picture::Coarser:
      DrawLines(p, {{10, 3, 5, 8}, {5, 8, 10, 13}});
      return;
    case Picture::Finer:
      DrawLines(p, {{6, 3, 11, 8}, {11, 8, 6, 13}});
      return;
    case Picture::ZoomOut:
      DrawGlass(p);
      DrawLines(p, {{4.8, 7, 9.2, 7}});
      return;
    case Picture::ZoomIn:
      DrawGlass(p);
      DrawLines(p, {{4.8, 7, 9.2, 7}, {7, 4.8, 7, 9.2}});
      return;
    case Picture::ZoomOne:
      DrawLines(p, {{3, 5, 4.5, 3.5},
                    {4.5, 3.5, 4.5, 12.5},
                    {10, 5, 11.5, 3.5},
                    {11.5, 3.5, 11.5, 12.5},
                    {8, 6, 8, 6.3},
                    {8, 10, 8, 10.3}});
      return;
    case Picture::Centre:
      p.drawEllipse(QPointF(8, 8), 4.5, 4.5);
      DrawLines(p, {{8, 1, 8, 6}, {8, 10, 8, 15}, {1, 8, 6, 8}, {10, 8, 15, 8}});
      return;
    case Picture::Own:
      p.drawRect(QRectF(2.5, 2.5, 11, 11));
      DrawLines(p, {{8, 2.5, 8, 5.5}, {8, 10.5, 8, 13.5}, {2.5, 8, 5.5, 8}, {10.5, 8, 13.5, 8}});
      return;
    case Picture::Station:
      p.drawPolygon(QPolygonF({{8, 1.5}, {14.5, 8}, {8, 14.5}, {1.5, 8}}));
      return;
    case Picture::Brightness: {
      p.drawEllipse(QPointF(8, 8), 5.5, 5.5);
      p.setBrush(ink);
      p.drawPie(QRectF(2.5, 2.5, 11, 11), 90 * 16, 180 * 16);
      return;
    }
    default:
      if (picture < Picture::ClassMoving) {
        DrawLayer(p, picture, ink);
      } else {
        DrawClass(p, picture);
      }
  }
}

}  // namespace

QIcon IconOf(Picture picture, const QColor& ink) {
  QPixmap pixmap(kSide * kScale, kSide * kScale);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(kScale, kScale);
  painter.setPen(QPen(ink, 1.4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  Draw(painter, picture, ink);
  painter.end();
  pixmap.setDevicePixelRatio(kScale);
  return QIcon(pixmap);
}

}  // namespace zepril
