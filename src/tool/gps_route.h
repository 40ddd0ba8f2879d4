// What a GPS says that is driven along a route, a piece of text a second, in good and bad manners.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/clock.h"

namespace zepril {

struct GpsPoint {
  double Lat = 0.0;  // degrees
  double Lon = 0.0;
};

// "52.5,13.4;52.6,13.5": degrees, points divided by ";". Nothing for what is no such list, or a
// place that is none.
std::optional<std::vector<GpsPoint>> ReadGpsRoute(std::string_view text);
// So far along the route, which ends at its last point. The way between two points is straight on a
// chart.
GpsPoint PointOfRoute(const std::vector<GpsPoint>& route, double metres);

enum class GpsManner {
  Rmc,      // place, speed, date and time
  Gga,      // place and height alone
  Mixed,    // both, by two talkers in turn, with satellites and course
  Damaged,  // every third sentence with another digit in it than its checksum knows
  Halves,   // half a sentence now, the other half a second later
};
// By its name in small letters; nothing for any other.
std::optional<GpsManner> GpsMannerNamed(std::string_view name);

// What is said in the second `count` (from 0), at `utc`.
struct GpsMoment {
  GpsPoint At;
  LocalTime Utc;
  double Knots = 0.0;
  int Count = 0;
};

// The sentences of a second, each with its checksum and line end.
std::string GpsSentences(GpsManner manner, const GpsMoment& moment);

// A GPS in one of these manners, that remembers the half which it has not said yet.
class GpsTalker {
 public:
  explicit GpsTalker(GpsManner manner) : manner_(manner) {}
  std::string Say(const GpsMoment& moment);

 private:
  GpsManner manner_;
  std::string rest_;
};

}  // namespace zepril
