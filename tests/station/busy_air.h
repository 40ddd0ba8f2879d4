// Some minutes of a busy frequency with an operator at work: many frames a second, some of the
// followed station, and a click on the map every few seconds.
#pragma once

#include <functional>
#include <string>

#include "reception/receive_pass.h"
#include "tests/station/station_support.h"

namespace zepril {

struct BusyAir {
  int Seconds = 300;
  int FramesASecond = 20;
  int FollowedEvery = 25;  // each so many frames one is of the followed station; 0 none
  double ClickEverySeconds = 3.0;
  // What the operator does; the number of the click counts up.
  std::function<void(StationHarness&, int click)> Click;

  int Frames() const { return Seconds * FramesASecond; }
};

// The left button: another part of the map.
inline void ClickOnMap(StationHarness& station, int click) {
  const double x = 300.0 + 10.0 * (click % 7);
  station.Controls().Map.Picture1.MouseDown({1, 0, x, 300.0});
  station.Controls().Map.Picture1.MouseUp({1, 0, x, 300.0});
}

// No frame is like another: none is a repeat.
inline void HearFrame(StationHarness& station, const BusyAir& air, int number) {
  const bool followed = air.FollowedEvery > 0 && number % air.FollowedEvery == 0;
  const std::string call = followed ? "QX1AB-9" : "N" + ZeroPadded(number % 500, 3) + "X";
  const std::string north =
      ZeroPadded(5000 + number / 100 % 60, 4) + "." + ZeroPadded(number % 100, 2);
  station.Hear(call, "=" + north + "N/01324.00E>" + WholeNumber(number) + " of a busy day",
               "WIDE1-1*");
}

// Starts the station, plays the minutes and the quiet after them.
inline ReceptionCounts PlayBusyAir(StationHarness& station, const BusyAir& air) {
  constexpr double kQuietSeconds = 60.0;
  station.Start();
  for (int number = 0; number < air.Frames(); ++number) {
    station.clock.Schedule(static_cast<double>(number) / air.FramesASecond,
                           [&station, air, number] { HearFrame(station, air, number); });
  }
  if (air.Click) {
    for (int click = 0; click * air.ClickEverySeconds < air.Seconds; ++click) {
      station.clock.Schedule(0.07 + click * air.ClickEverySeconds,
                             [&station, air, click] { air.Click(station, click); });
    }
  }
  station.clock.Run(air.Seconds + kQuietSeconds);
  return station.program->Counts();
}

}  // namespace zepril
