// The map window's drawing surface: an image of 32-bit pixels, drawn to the pixel and never
// smoothed.
#pragma once

#include <QImage>

#include "platform/drawing_surface.h"
#include "platform/qt/map_fonts.h"

namespace zepril {

class QtSurface final : public DrawingSurface {
 public:
  // The fonts must outlive the surface; several surfaces share them.
  QtSurface(int width, int height, MapFonts& fonts);

  // Another size; the picture is lost.
  void Resize(int width, int height);
  const QImage& Picture() const { return image_; }

  int Width() const override { return image_.width(); }
  int Height() const override { return image_.height(); }
  std::string BmpFile() const override;
  void Clear(Colour colour) override;
  void Lines(std::span<const PixelLine> lines, Colour colour) override;
  void Box(int x1, int y1, int x2, int y2, Colour colour) override;
  void FilledBox(int x1, int y1, int x2, int y2, Colour colour) override;
  void Circle(int x, int y, int radius, Colour colour) override;
  void Arc(int x, int y, int radius, double start, double end, Colour colour) override;
  void Points(std::span<const PixelPoint> points, Colour colour) override;
  void Text(int x, int y, std::string_view text, FontFace face, Colour colour) override;
  void Image(const PixelRect& target, const PixelImage& image, const PixelRect& source) override;

 private:
  QImage image_;
  MapFonts& fonts_;
};

}  // namespace zepril
