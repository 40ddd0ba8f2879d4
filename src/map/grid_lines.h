// Lines of a coordinate grid on the window: joined from converted points, cut where nothing of them
// is seen, labelled where they cross the window's edge.
//
// What is not handed to the surface lies outside the window as a whole, so the picture is the one
// that all lines would make.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "core/state/map_view.h"
#include "platform/drawing_surface.h"

namespace zepril {

// A point of a grid line: its pixel as drawn, and as exact as the conversion gave it.
struct GridPoint {
  PixelPoint Pixel;
  double X = 0.0;
  double Y = 0.0;
  bool Known = false;  // false: the conversion had no result
};

// Where a WGS 84 position lies in the window. The longitude is taken on the side of the zone where
// it is nearest to the map's meridian, so that a map of the first or the last zone goes on over the
// date line.
GridPoint GridPointOf(const MapViewState& view, double lon, double lat);

// Which neighbours of a line are joined.
enum class GridJoin {
  Near,     // those at most 120 pixels apart in both directions
  Unbroken  // all but those that the projection tears apart, more than a quarter of the globe
};

// The edge at which a line is labelled, and in brackets the one tried when it doesn't cross that.
enum class GridEdge { Left /* top */, Top /* left */, Right /* left */, Bottom /* top */ };

// Places at an edge that the labels of other grids take: a grid's own labels stand behind them.
struct GridSlots {
  int Left = 0;
  int Top = 0;
};

// The places that labels have taken, those of all grids of one picture: whoever comes later gives
// way.
class GridLabels {
 public:
  // The cell of a label of `length` characters with its top left there; false when one is in the
  // way.
  bool Take(int x, int y, std::size_t length);
  void Clear() { taken_.clear(); }

 private:
  struct Cell {
    int X;
    int Y;
    int Width;
  };
  std::vector<Cell> taken_;
};

class GridPainter {
 public:
  GridPainter(DrawingSurface& surface, const MapViewState& view, Colour colour, GridLabels& taken,
              GridSlots slots = {})
      : surface_(surface), view_(view), colour_(colour), taken_(taken), slots_(slots) {}
  // Draws what was collected: the lines in one go, then the labels, on a black rim so that pale
  // colours can be read on a pale map.
  ~GridPainter();
  GridPainter(const GridPainter&) = delete;
  GridPainter& operator=(const GridPainter&) = delete;

  void Segment(PixelPoint from, PixelPoint to);
  // A label with its cell's top left there, if that is inside the window and no other label is in
  // the way. One that would lose its end or its rim at the window's edge is moved in.
  void Label(double x, double y, const std::string& text);
  // A whole line through points, with its label.
  void Line(std::span<const GridPoint> points, GridJoin join, GridEdge edge,
            const std::string& label);

 private:
  struct LabelText {
    int X;
    int Y;
    std::string Text;
  };
  bool Joined(const GridPoint& a, const GridPoint& b, GridJoin join) const;
  bool LabelUpright(GridEdge edge, const std::string& label);
  bool LabelLevel(GridEdge edge, const std::string& label);
  bool LabelAt(GridEdge edge, const std::string& label);

  DrawingSurface& surface_;
  const MapViewState& view_;
  Colour colour_;
  GridLabels& taken_;
  GridSlots slots_;
  std::vector<PixelLine> segments_;
  std::vector<PixelLine> line_;  // the joined pieces of the line at hand
  std::vector<LabelText> labels_;
};

}  // namespace zepril
