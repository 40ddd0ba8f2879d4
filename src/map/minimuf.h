// MINIMUF 3.5: the highest frequency that a path over the F2 layer carries, from a handful of
// empirical formulas.
//
// Source: R. B. Rose, J. N. Martin, P. H. Levine, "MINIMUF-3: A simplified HF MUF prediction
// algorithm", Naval Ocean Systems Center, Technical Report 186, 1978; form 3.5 as published by
// R. B. Rose in QST, December 1982. Written here from the published formulas.
//
// Method: the path is cut into hops of at most 1/1.59 radian (about 4000 km). Half a hop from each
// end (in the middle of a path of one hop) the critical frequency follows the sun: ionisation rises
// after local sunrise with a time constant that grows with the height of the noon sun, and decays
// with two hours after sunset. The lowest of these points limits the path. The published
// error is about 4 MHz r.m.s. for paths of 250 to 6000 km.
#pragma once

namespace zepril {

struct MinimufInputs {
  double Lat1 = 0.0;  // radians, north positive
  double Lon1 = 0.0;  // radians, west positive
  double Lat2 = 0.0;
  double Lon2 = 0.0;
  double SunspotNumber = 0.0;
  int Month = 1;          // 1 to 12; its fifteenth day is taken
  double UtcHours = 0.0;  // 0 to 24
};

// Megahertz. 0 for latitudes beyond 90 and longitudes beyond 360 degrees, a month outside 1 to 12,
// a negative sunspot number, and a path between two equal or two opposite places.
double Minimuf(const MinimufInputs& inputs);

}  // namespace zepril
