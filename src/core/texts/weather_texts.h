// The words of WX INFO. Degree signs are code page 1252.
#pragma once

#include <array>

#include "core/texts/text.h"

namespace zepril::weather_texts {

// %1: call, %2: year of two digits, %3: month, %4: day, %5: time.
inline constexpr Text kTitle{"WX STATION  %1  20%2-%3-%4 %5"};
// In front of each value, in the order of the panel.
inline constexpr std::array<Text, 9> kLabels{{
    {"WIND DIR   deg:"},
    {"WIND SPEED m/s:"},
    {"GUST SPEED m/s:"},
    {"TEMPERATURE \xB0"
     "C:"},
    {"RAIN  1 h   mm:"},
    {"RAIN 24 h   mm:"},
    {"RAIN TODAY  mm:"},
    {"HUMIDITY     %:"},
    {"PRESSURE   hPa:"},
}};

}  // namespace zepril::weather_texts
