// The table of the colours, a row a degree.
#include "core/temperature_colour.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace zepril {
namespace {

constexpr int kColdest = -40;
constexpr int kHottest = 40;

struct Shade {
  unsigned char Blue, Green, Red;
};

constexpr std::array<Shade, kHottest - kColdest + 1> kShades{{
    // -40 to -30
    {250, 250, 0},
    {250, 225, 0},
    {250, 200, 0},
    {250, 175, 0},
    {250, 150, 0},
    {250, 125, 0},
    {250, 100, 0},
    {250, 75, 0},
    {250, 50, 0},
    {250, 25, 0},
    {250, 0, 0},
    // -29 to -20. Kept: the blue of -26 breaks the row.
    {249, 16, 0},
    {248, 32, 0},
    {247, 48, 0},
    {250, 64, 0},
    {245, 80, 0},
    {244, 88, 0},
    {243, 96, 0},
    {242, 104, 0},
    {241, 112, 0},
    {240, 120, 0},
    // -19 to -10
    {239, 124, 0},
    {238, 128, 0},
    {237, 132, 0},
    {236, 136, 0},
    {235, 140, 0},
    {234, 142, 0},
    {233, 144, 0},
    {232, 146, 0},
    {231, 148, 0},
    {230, 150, 0},
    // -9 to 0
    {226, 154, 0},
    {222, 158, 0},
    {218, 162, 0},
    {214, 166, 0},
    {210, 170, 0},
    {206, 174, 0},
    {202, 178, 0},
    {198, 182, 0},
    {194, 186, 0},
    {190, 190, 0},
    // 1 to 10
    {180, 196, 0},
    {170, 202, 0},
    {160, 208, 0},
    {150, 214, 0},
    {140, 220, 0},
    {112, 226, 0},
    {84, 232, 0},
    {56, 238, 0},
    {28, 244, 0},
    {0, 250, 0},
    // 11 to 20
    {0, 248, 38},
    {0, 246, 76},
    {0, 244, 114},
    {0, 242, 152},
    {0, 240, 190},
    {0, 236, 196},
    {0, 232, 202},
    {0, 228, 208},
    {0, 224, 214},
    {0, 220, 220},
    // 21 to 30
    {0, 210, 224},
    {0, 200, 228},
    {0, 190, 232},
    {0, 180, 236},
    {0, 170, 240},
    {0, 160, 242},
    {0, 140, 244},
    {0, 120, 246},
    {0, 60, 248},
    {0, 0, 250},
    // 31 to 40
    {0, 0, 225},
    {0, 0, 200},
    {0, 0, 175},
    {0, 0, 150},
    {0, 0, 125},
    {0, 0, 100},
    {0, 0, 75},
    {0, 0, 50},
    {0, 0, 25},
    {0, 0, 0},
}};

}  // namespace

Colour TemperatureColour(int celsius) {
  const Shade& shade =
      kShades[static_cast<std::size_t>(std::clamp(celsius, kColdest, kHottest) - kColdest)];
  return static_cast<Colour>(shade.Blue) << 16 | static_cast<Colour>(shade.Green) << 8 | shade.Red;
}

}  // namespace zepril
