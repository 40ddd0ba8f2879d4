// The colours by which controls tell a state, 0xBBGGRR: the rooms set them, the windows have a
// shade for each.
#pragma once

#include <cstdint>

namespace zepril::state_colours {

// Switches that are on, where being on means one thing all over the program.
inline constexpr std::uint32_t kOnTheAir = 0x4848E0;
inline constexpr std::uint32_t kOwnObject = 0x00C0C0;
inline constexpr std::uint32_t kOwnObjectDimmed = 0x007070;  // while it can't go on
inline constexpr std::uint32_t kLayerOn = 0xD08030;

// Brightness of the map's tiles, as its button tells it.
inline constexpr std::uint32_t kMapAsItIs = 0xC0C0A0;
inline constexpr std::uint32_t kMapDimmed = 0x606046;
inline constexpr std::uint32_t kMapBrighter = 0xFFFFD6;

// A row of the scales: its field, and whether there are maps under the view.
inline constexpr std::uint32_t kScaleField = 0xC0C0C0;
inline constexpr std::uint32_t kActiveScale = 0x00E0E0;
inline constexpr std::uint32_t kNotCovered = 0x808080;
inline constexpr std::uint32_t kCovered = 0xC0C0A0;
inline constexpr std::uint32_t kScaleText = 0xC0C0C0;  // beside the scale bar

// How full a list is, and how far a work is that takes time.
inline constexpr std::uint32_t kBar = 0xC0C078;
inline constexpr std::uint32_t kBarOverLimit = 0x0080D0;
inline constexpr std::uint32_t kBarFarOverLimit = 0x0040FF;

// The status line while data comes from the internet.
inline constexpr std::uint32_t kCollectingMoni1 = 0x00C000;
inline constexpr std::uint32_t kCollectingMoniAll = 0xFF80E0;
inline constexpr std::uint32_t kSendingMessage = 0x00C0C0;

// The distance alarm.
inline constexpr std::uint32_t kAlarmGround = 0x00FFFF;
inline constexpr std::uint32_t kAlarmInk = 0x000000;

}  // namespace zepril::state_colours
