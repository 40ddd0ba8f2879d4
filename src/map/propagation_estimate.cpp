#include "map/propagation_estimate.h"
namespace zepril {
PropagationResult PropagationEstimate(double, double, double, double, const PropagationInputs&) {
  return {};
}
}  // namespace zepril
