// What a station paints on.
#pragma once

#include <memory>

#include "map/symbol_sheets.h"
#include "platform/drawing_surface.h"
#include "platform/machine.h"
#include "viewers/sun_curve.h"
#include "weather/wx_drawing.h"

namespace zepril {

struct StationSurfaces {
  // Pixels of the map until the window tells what it has.
  static constexpr int kFirstMapWidth = 880;
  static constexpr int kFirstMapHeight = 700;

  explicit StationSurfaces(const SurfaceFactory& make)
      : Map(make(kFirstMapWidth, kFirstMapHeight)),
        Base(make(kFirstMapWidth, kFirstMapHeight)),
        Sun(make(SunCurve::kPlotWidth, SunCurve::kPlotHeight)),
        TxSymbol(make(kSymbolCellPixels, kSymbolCellPixels)),
        ObjectSymbol(make(kSymbolCellPixels, kSymbolCellPixels)),
        Weather(make(kWxPicturePixels, kWxPicturePixels)) {}

  std::shared_ptr<DrawingSurface> Map;           // `Picture1`
  std::shared_ptr<DrawingSurface> Base;          // the second map window under it
  std::shared_ptr<DrawingSurface> Sun;           // plot of the sun's path
  std::shared_ptr<DrawingSurface> TxSymbol;      // the symbol in TX SETUP
  std::shared_ptr<DrawingSurface> ObjectSymbol;  // and in OBJECT SETUP, each of one cell
  std::shared_ptr<DrawingSurface> Weather;       // the report of a weather station
};

}  // namespace zepril
