// The track and the places that are loaded.
#pragma once

#include "core/point_list.h"

namespace zepril {

struct PlacesState {
  static constexpr int kMostTrackLines = 999999;
  static constexpr int kMostPlacesRead = 30000;  // from a file
  static constexpr int kMostPlacesHeld = 30010;  // in the table; one more is an error
  static constexpr std::size_t kLongestTrackLine = 256;
  static constexpr std::size_t kLongestPlaceLine = 1024;

  PointList TrackPoints{kMostTrackLines, kLongestTrackLine};
  PointList PoiPoints{kMostPlacesHeld, kLongestPlaceLine};
  int PoiEditIndex = 0;  // 0 a new place, else the one that is edited
};

}  // namespace zepril
