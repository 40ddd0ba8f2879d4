// Colours of what is drawn over the map, 0xBBGGRR.
#pragma once

#include "core/state_colours.h"
#include "platform/drawing_surface.h"

namespace zepril {

inline constexpr Colour kPenColour = 0x00FFFF;  // the pen between layers
inline constexpr Colour ColourTrackRecent = 0x00FFFF;
inline constexpr Colour ColourTrackHuman = 0xD0FF60;
inline constexpr Colour ColourTrackHours = 0x20FFE0;
inline constexpr Colour ColourTrackOld = 0x40FFC0;
inline constexpr Colour ColourTrackT = 0xD0D0D0;
inline constexpr Colour GpsColour = 0xFFFF00;
inline constexpr Colour ColourMoniAll = 0xB80098;
inline constexpr Colour ColourMoniAllObject = 0xE800C8;
inline constexpr Colour ColourPictureMark = 0xFFFFFF;

// Coordinate grids, one colour a display system.
inline constexpr Colour kMapGridColour = 0xE8E8E8;
inline constexpr Colour kGeographicGridColour = 0x00E0E0;
inline constexpr Colour kGaussKruegerGridColour = 0xFFC0FF;
inline constexpr Colour kUtmGridColour = 0xFFE000;
inline constexpr Colour kRt90GridColour = 0x00F000;

inline constexpr Colour kFindColour = 0x0080FF;        // the station that was looked for
inline constexpr Colour kMessageDotColour = 0x00FF00;  // takes messages
inline constexpr Colour kOwnObjectColour = state_colours::kOwnObject;
inline constexpr Colour kOwnObjectOnAirColour = 0x00FFFF;
inline constexpr Colour kTrackWithTextColour = 0xD0FF90;  // a track point with a text of its own
inline constexpr Colour kPlaceColour = 0x00E0FF;

}  // namespace zepril
