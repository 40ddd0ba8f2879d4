// What frequency carries between two places over the ionosphere.
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
  double Fopt = 0.0;
  double MufPath = 0.0;
  double MufSecond = 0.0;
  double Mean = 0.0;
};

// Degrees, east and north positive.
PropagationResult PropagationEstimate(double lat1, double lon1, double lat2, double lon2,
                                      const PropagationInputs& inputs);

}  // namespace zepril
