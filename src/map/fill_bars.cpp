// How many pixels of a bar are filled, and its colour beyond the limit.
#include "map/fill_bars.h"

#include <algorithm>

#include "core/state_colours.h"
#include "core/text_fields.h"

namespace zepril {
namespace {

constexpr double kFullBarPx = 120.0;

int BarPixels(int count, int limit) {
  if (limit < 1) return 0;
  return static_cast<int>(ToWhole(static_cast<double>(count) / limit * kFullBarPx));
}

}  // namespace

void ShowMoniAllBar(FillBar& bar, int count, int limit) {
  bar.FilledPx = BarPixels(count, limit);
}

void ShowMoni1Bar(FillBar& bar, int count, int limit) {
  bar.FilledPx = std::min(BarPixels(count, limit), static_cast<int>(kFullBarPx));
  bar.Colour = state_colours::kBar;
  if (count > limit) bar.Colour = state_colours::kBarOverLimit;
  if (count > 1.2 * limit) bar.Colour = state_colours::kBarFarOverLimit;
}

}  // namespace zepril
