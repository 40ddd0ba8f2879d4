// Which lines of a grid's lattice can reach the window, so that no more points are converted.
#pragma once

#include <functional>
#include <optional>

#include "core/state/map_view.h"
#include "geodesy/conversions.h"

namespace zepril {

// Lines at First + n * Step, n from 0 to Count - 1, in the units of their system.
struct LatticeAxis {
  double First = 0.0;
  double Step = 1.0;
  int Count = 0;
};

// Numbers of lines, the last one included.
struct LineNumbers {
  int First = 0;
  int Last = -1;
  int Count() const { return Last - First + 1; }
};

struct LatticePart {
  LineNumbers Rows;
  LineNumbers Columns;
};

// A place in the units of a lattice.
struct LatticePlace {
  double Row = 0.0;
  double Column = 0.0;
};

// `place_of`: where a WGS 84 position lies in the lattice; nothing when the way back from there
// leads elsewhere. The part holds what the window shows and two lines more on each side. Where the
// window is so large or lies so far off that the grids bend, it is the whole lattice.
LatticePart PartInWindow(
    const MapViewState& view, const LatticeAxis& rows, const LatticeAxis& columns,
    const std::function<std::optional<LatticePlace>(const Geodetic&)>& place_of);

// Whether two positions are the same to the metre.
bool SamePlace(const Geodetic& one, const Geodetic& two);

}  // namespace zepril
