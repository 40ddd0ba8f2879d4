// What the tests of both station layers share: a window of one pixel a kilometre, and what is drawn
// on it.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "map/all_stations_layer.h"
#include "map/map_view.h"
#include "tests/map/map_world.h"

namespace zepril {

inline RecorderSurface::Operation Filled(int x1, int y1, int x2, int y2, Colour colour) {
  return {"filled", x1, y1, x2, y2, colour, {}, FontFace::Text, {}};
}
inline RecorderSurface::Operation Words(int x, int y, const std::string& text, Colour colour) {
  return {"text", x, y, 0, 0, colour, text, FontFace::Text, {}};
}
inline RecorderSurface::Operation Line(int x1, int y1, int x2, int y2, Colour colour) {
  return {"line", x1, y1, x2, y2, colour, {}, FontFace::Text, {}};
}

// A window in which pixel (x, y) is at km (1000 - y, x): one pixel a kilometre.
struct StationWorld : MapWorld {
  StationWorld() {
    MapViewState& view = View();
    view.MapTileKm = 1000.0;
    view.CentreNorthKm = 701.0;
    view.CentreEastKm = 400.0;
    ComputeViewEdges(view);
    EXPECT_DOUBLE_EQ(view.ViewNorthKm, 1000.0);
    EXPECT_DOUBLE_EQ(view.ViewWestKm, 0.0);
  }
  static RecordMaker At(int x, int y, const std::string& call = "N0CALL",
                        const std::string& symbol = "/>") {
    RecordMaker maker;
    maker.NorthKm = 1000.0 - y;
    maker.EastKm = x;
    maker.Call = call;
    maker.Symbol = symbol;
    return maker;
  }
  const std::vector<RecorderSurface::Operation>& Draw(int level) {
    View().StationLabelLevel = static_cast<LabelLevel>(level);
    Surface.Operations.clear();
    Room.Sheets.BeginRedraw();
    AllStationsDraw(Surface, View(), State.Stores.MoniAllRecords, State.Followed.Moni1Call,
                    Room.Symbols, Room.Sheets, Clock.Now());
    return Surface.Operations;
  }
};

// Whether a filled row lies over a pixel.
inline bool IsFilledAt(const RecorderSurface& surface, int x, int y) {
  const auto rows = surface.Of("filled");
  return std::any_of(rows.begin(), rows.end(), [&](const RecorderSurface::Operation& row) {
    return x >= row.X1 && x <= row.X2 && y >= row.Y1 && y <= row.Y2;
  });
}

}  // namespace zepril
