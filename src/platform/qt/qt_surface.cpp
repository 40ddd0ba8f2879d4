// Hands each drawing operation to the raster or to the fonts, and saves bitmaps.
#include "platform/qt/qt_surface.h"

#include <QBuffer>
#include <QByteArray>

#include <algorithm>

#include "platform/qt/pixel_raster.h"

namespace zepril {
namespace {

PixelRaster RasterOf(QImage& image) {
  return {reinterpret_cast<std::uint32_t*>(image.bits()), image.width(), image.height(),
          static_cast<std::ptrdiff_t>(image.bytesPerLine() / 4)};
}

}  // namespace

QtSurface::QtSurface(int width, int height, MapFonts& fonts) : fonts_(fonts) {
  Resize(width, height);
}

void QtSurface::Resize(int width, int height) {
  image_ = QImage(std::max(width, 1), std::max(height, 1), QImage::Format_RGB32);
  image_.fill(0xFF000000u);
}

std::string QtSurface::BmpFile() const {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  image_.save(&buffer, "BMP");
  return bytes.toStdString();
}

void QtSurface::Clear(Colour colour) {
  image_.fill(PixelOfColour(colour));
}

void QtSurface::Lines(std::span<const PixelLine> lines, Colour colour) {
  const PixelRaster raster = RasterOf(image_);
  const std::uint32_t pixel = PixelOfColour(colour);
  for (const PixelLine& line : lines)
    RasterLine(raster, line, pixel);
}

void QtSurface::Box(int x1, int y1, int x2, int y2, Colour colour) {
  RasterBox(RasterOf(image_), x1, y1, x2, y2, PixelOfColour(colour));
}

void QtSurface::FilledBox(int x1, int y1, int x2, int y2, Colour colour) {
  RasterFilledBox(RasterOf(image_), x1, y1, x2, y2, PixelOfColour(colour));
}

void QtSurface::Circle(int x, int y, int radius, Colour colour) {
  RasterCircle(RasterOf(image_), x, y, radius, PixelOfColour(colour));
}

void QtSurface::Arc(int x, int y, int radius, double start, double end, Colour colour) {
  RasterArc(RasterOf(image_), x, y, radius, start, end, PixelOfColour(colour));
}

void QtSurface::Points(std::span<const PixelPoint> points, Colour colour) {
  const PixelRaster raster = RasterOf(image_);
  const std::uint32_t pixel = PixelOfColour(colour);
  for (const PixelPoint& point : points)
    raster.Put(point.X, point.Y, pixel);
}

void QtSurface::Text(int x, int y, std::string_view text, FontFace face, Colour colour) {
  const PixelRaster raster = RasterOf(image_);
  const std::uint32_t pixel = PixelOfColour(colour);
  for (char character : text) {
    if (x >= raster.Width) return;
    const MapGlyph& glyph = fonts_.Glyph(face, static_cast<unsigned char>(character));
    for (const PixelPoint& point : glyph.Pixels)
      raster.Put(x + point.X, y + point.Y, pixel);
    x += glyph.Advance;
  }
}

void QtSurface::Image(const PixelRect& target, const PixelImage& image, const PixelRect& source) {
  RasterImage(RasterOf(image_), target, image, source);
}

}  // namespace zepril
