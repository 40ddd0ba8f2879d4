// A drawing surface that writes down what is drawn on it, in order.
#pragma once

#include <string>
#include <vector>

#include "platform/drawing_surface.h"

namespace zepril {

class RecorderSurface final : public DrawingSurface {
 public:
  struct Operation {
    std::string
        Kind;  // "clear", "line", "box", "filled", "circle", "arc", "point", "text", "image"
    int X1 = 0;
    int Y1 = 0;
    int X2 = 0;  // circle, arc: radius; image: width
    int Y2 = 0;  // image: height
    Colour Ink = 0;
    std::string Words;
    FontFace Face = FontFace::Text;
    PixelRect Source;
    friend bool operator==(const Operation&, const Operation&) = default;
  };

  RecorderSurface(int width, int height) : width_(width), height_(height) {}

  int Width() const override { return width_; }
  int Height() const override { return height_; }
  // Tells how many operations had been drawn.
  std::string BmpFile() const override { return "BM" + std::to_string(Operations.size()); }
  void Clear(Colour colour) override { Add({"clear", 0, 0, 0, 0, colour, {}, FontFace::Text, {}}); }
  void Lines(std::span<const PixelLine> lines, Colour colour) override {
    for (const PixelLine& line : lines) {
      Add({"line", line.From.X, line.From.Y, line.To.X, line.To.Y, colour, {}, FontFace::Text, {}});
    }
  }
  void Box(int x1, int y1, int x2, int y2, Colour colour) override {
    Add({"box", x1, y1, x2, y2, colour, {}, FontFace::Text, {}});
  }
  void FilledBox(int x1, int y1, int x2, int y2, Colour colour) override {
    Add({"filled", x1, y1, x2, y2, colour, {}, FontFace::Text, {}});
  }
  void Circle(int x, int y, int radius, Colour colour) override {
    Add({"circle", x, y, radius, 0, colour, {}, FontFace::Text, {}});
  }
  void Arc(int x, int y, int radius, double, double, Colour colour) override {
    Add({"arc", x, y, radius, 0, colour, {}, FontFace::Text, {}});
  }
  void Points(std::span<const PixelPoint> points, Colour colour) override {
    for (const PixelPoint& p : points) {
      Add({"point", p.X, p.Y, 0, 0, colour, {}, FontFace::Text, {}});
    }
  }
  void Text(int x, int y, std::string_view text, FontFace face, Colour colour) override {
    Add({"text", x, y, 0, 0, colour, std::string(text), face, {}});
  }
  void Image(const PixelRect& target, const PixelImage&, const PixelRect& source) override {
    Add({"image", target.X, target.Y, target.Width, target.Height, 0, {}, FontFace::Text, source});
  }

  std::vector<Operation> Of(const std::string& kind) const {
    std::vector<Operation> found;
    for (const Operation& operation : Operations) {
      if (operation.Kind == kind) found.push_back(operation);
    }
    return found;
  }

  std::vector<Operation> Operations;

 private:
  void Add(Operation operation) { Operations.push_back(std::move(operation)); }
  int width_;
  int height_;
};

}  // namespace zepril
