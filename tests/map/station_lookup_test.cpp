// Which station lies under a press on the map.
#include "map/station_lookup.h"

#include <gtest/gtest.h>

#include <string>

#include "core/text_fields.h"
#include "tests/map/map_world.h"

namespace zepril {
namespace {

// Stations around 5825 / 425, seen at two metres a pixel or at another scale.
struct LookupWorld {
  explicit LookupWorld(double metres_per_pixel = 2.0) {
    View.MetresPerPixel = metres_per_pixel;
    View.PixelsPerKm = 1000.0 / metres_per_pixel;
  }
  void Hear(StationStore& store, const std::string& call, double east_px) {
    RecordMaker maker;
    maker.Call = call;
    maker.EastKm += east_px * View.MetresPerPixel / 1000.0;
    store.Append(maker.Make());
  }
  std::string At(double east_px, const std::string& followed = "QX7KB") const {
    const double east_km = 425.0 + east_px * View.MetresPerPixel / 1000.0;
    const auto found = FindStationNear(View, All, History, followed, 5825.0, east_km);
    return found ? found->Call + " " + WholeNumber(found->RecordIndex) : "nothing";
  }
  MapViewState View;
  StationStore All{100};
  StationStore History{100};
};

TEST(StationLookup, ReachesTwelvePixelsAtEveryScale) {
  for (double metres_per_pixel : {2.0, 50.0, 200.0, 5000.0}) {
    LookupWorld world(metres_per_pixel);
    world.Hear(world.All, "QX1AB", 0);
    EXPECT_EQ(world.At(11.5), "QX1AB 1") << metres_per_pixel;
    EXPECT_EQ(world.At(-11.5), "QX1AB 1") << metres_per_pixel;
    EXPECT_EQ(world.At(12.6), "nothing") << metres_per_pixel;
  }
}

TEST(StationLookup, TakesTheNearestAndOfEqualOnesTheNewest) {
  LookupWorld world;
  world.Hear(world.All, "NEAR", 3);
  world.Hear(world.All, "TWIN", 3);
  world.Hear(world.All, "FARTHER", -5);
  EXPECT_EQ(world.At(0), "TWIN 2");
  EXPECT_EQ(world.At(-2), "FARTHER 3");
}

TEST(StationLookup, AllStationsComeBeforeTheFollowedOne) {
  LookupWorld world;
  world.Hear(world.History, "QX7KB", 0);
  EXPECT_EQ(world.At(0), "QX7KB 1");
  world.Hear(world.All, "QX1AB", 10);
  EXPECT_EQ(world.At(0), "QX1AB 1");
  EXPECT_EQ(world.At(-3), "QX7KB 1");
}

TEST(StationLookup, ARecordOfTheFollowedStationLeadsToItsHistory) {
  LookupWorld world;
  world.Hear(world.History, "QX7KB", 0);
  world.Hear(world.History, "QX7KB", 0);
  world.Hear(world.All, "QX7KB", 0);
  EXPECT_EQ(world.At(0, "qx7kb"), "qx7kb 2");
}

}  // namespace
}  // namespace zepril
