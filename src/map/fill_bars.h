// How full the two station stores are.
#pragma once

#include "core/controls.h"

namespace zepril {

// 120 pixels stand for the limit.
void ShowMoniAllBar(FillBar& bar, int count, int limit);
// The history may outgrow its limit: the bar stays at 120 pixels and changes its colour.
void ShowMoni1Bar(FillBar& bar, int count, int limit);

}  // namespace zepril
