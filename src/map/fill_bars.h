// How full the two station stores are.
#pragma once

#include "core/controls.h"

namespace zepril {

inline constexpr std::uint32_t kBarColour = 0xC0C078;
inline constexpr std::uint32_t kBarOverLimit = 0x0080D0;
inline constexpr std::uint32_t kBarFarOverLimit = 0x0040FF;  // above 1.2 times the limit

// 120 pixels stand for the limit.
void ShowMoniAllBar(FillBar& bar, int count, int limit);
// The history may outgrow its limit: the bar stays at 120 pixels and changes its colour.
void ShowMoni1Bar(FillBar& bar, int count, int limit);

}  // namespace zepril
