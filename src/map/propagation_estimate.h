// What frequency carries between two places over the ionosphere.
//
// Two models are weighed together. The first takes a single F layer at 275 km + half the sunspot
// number: the path is cut into as few hops as a take-off angle of 1.5 degrees and 4500 km a hop
// allow; half a hop from each end the critical frequency is found from the distance to the
// geomagnetic equator, the local time and the season, and divided by the sine of the angle at which
// the ray meets the layer. The lower of the two ends limits the path. The second is MINIMUF 3.5
// (map/minimuf.h). The mean of both, the first counted twice, is lowered where a disturbed magnetic
// field hurts most: in high latitudes.
#pragma once

namespace zepril {

struct PropagationInputs {
  double SunspotNumber = 40.0;  // held within 1 to 180
  double KpIndex = 2.0;
  int Month = 1;          // 1 to 12
  double UtcHours = 0.0;  // 0 to 24
};

// Megahertz, cut to one decimal; all 0 where no estimate can be made.
struct PropagationResult {
  double Fopt = 0.0;       // what to work on: the mean, less the loss of a disturbed field
  double MufPath = 0.0;    // the first model
  double MufSecond = 0.0;  // MINIMUF
  double Mean = 0.0;
};

// Degrees, east and north positive. Latitudes beyond 90 and longitudes beyond 180 give no estimate,
// nor do positions between which no path of up to 50 hops leaves the ground.
PropagationResult PropagationEstimate(double lat1, double lon1, double lat2, double lon2,
                                      const PropagationInputs& inputs);

// ---- The steps of the first model ------------------------------------------------------------

// A path cut into hops. Angles are degrees.
struct HopPlan {
  int Hops = 0;  // 0: no path
  double TakeOffDeg = 0.0;
  double HopDeg = 0.0;  // angle of a hop at the centre of the earth
};
double LayerHeightKm(double sunspots);
HopPlan PlanHops(double path_deg, double sunspots);

// Critical frequency in MHz over a place: latitude, longitude west positive.
double CriticalFrequency(double lat, double lon_west, double sunspots, int month, double utc_hours);
// Times this it is the highest frequency of a ray with that take-off angle.
double ObliqueRayFactor(double take_off_deg, double sunspots);

// Share of the frequency that is lost where the Kp index to the power of 1.5 is 9.
double DisturbanceWeight(double lat1, double lat2);

}  // namespace zepril
