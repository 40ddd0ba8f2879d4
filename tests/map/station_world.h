// What the tests of both station layers share: a window of one pixel a kilometre, and what is drawn
// on it.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "map/all_stations_layer.h"
#include "map/map_view.h"
#include "tests/map/kilometre_window.h"
#include "tests/map/map_world.h"

namespace zepril {

// A pixel a kilometre.
struct StationWorld : MapWorld {
  StationWorld() {
    ShowAPixelAKilometre(View());
    EXPECT_DOUBLE_EQ(View().ViewNorthKm, 1000.0);
    EXPECT_DOUBLE_EQ(View().ViewWestKm, 0.0);
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
