// Palette work on tiles: brightness and the chosen ink. It happens in memory; tiles on the disk are
// never touched.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace zepril {

// File lengths in bytes that carry a meaning.
inline constexpr std::int64_t kSixteenInkTile = 500118;  // 16 colours: the inks can be chosen
inline constexpr std::int64_t kPaletteTile = 1001078;    // 256 colours
inline constexpr std::int64_t kLongestInkTile = 600000;  // beyond it no ink palette is available

inline constexpr int kInks = 16;

struct PaletteWork {
  int BrightnessStep = 0;  // 0 as it is, 1 dark (60 %), 2 bright (160 %)
  std::optional<int> Ink;  // entry shown in bright yellow
  friend bool operator==(const PaletteWork&, const PaletteWork&) = default;
};

// One palette byte at a brightness step: rounded half to even, at most 255.
std::uint8_t BrightnessOf(std::uint8_t value, int step);

// Number of the chosen ink, 0 to 15; nothing for an empty or senseless text.
std::optional<int> ChosenInk(const std::string& selected_ink);

// The work that applies to a tile of this file length: brightness to both palette kinds, the ink to
// tiles of 16 inks.
PaletteWork WorkForTile(std::int64_t file_length, int brightness_step,
                        const std::string& selected_ink);

// A palette (0xFFRRGGBB) after the work.
std::vector<std::uint32_t> WorkedPalette(std::vector<std::uint32_t> palette,
                                         const PaletteWork& work);

}  // namespace zepril
