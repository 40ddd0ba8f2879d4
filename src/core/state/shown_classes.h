// Which classes of stations are shown: a mask of bits, 0 to 4 for the classes 2, 1, 0, 3 and 4.
#pragma once

#include <array>
#include <cstddef>

namespace zepril {

// What the box of a class says, by its value. Only that of the moving stations has the third state.
enum class ClassBox { Hidden = 0, Shown = 1, ShownIfMoved = 2 };

inline constexpr int kAllClasses = 31;

// `class_digit` of the symbol, 0 to 4; any other is always shown.
constexpr bool ClassIsShown(int mask, int class_digit) {
  constexpr std::array<int, 5> kBitOfClass{2, 1, 0, 3, 4};
  if (class_digit < 0 || class_digit >= static_cast<int>(kBitOfClass.size())) return true;
  return (mask >> kBitOfClass[static_cast<std::size_t>(class_digit)] & 1) != 0;
}

}  // namespace zepril
