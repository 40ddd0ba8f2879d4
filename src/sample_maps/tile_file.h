// Names, palettes and files of tiles.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "platform/files.h"

namespace zepril {

constexpr int kSampleTilePixels = 1000;
constexpr std::int64_t kTileBytes4 = 54 + 64 + 500000;
constexpr std::int64_t kTileBytes8 = 54 + 1024 + 1000000;

// Inks of the 16-colour tiles. An ink means one thing in every tile of every scale.
enum Ink : std::uint8_t {
  kInkSea = 0,
  kInkSeaNear = 1,
  kInkSeaShore = 2,
  kInkLand = 3,
  kInkCoast = 4,
  kInkBorderBand = 5,
  kInkBorder = 6,
  kInkTownRim = 7,
  kInkTown = 8,
  kInkCapital = 9,
  kInkName = 10,
  kInkSmallName = 11,
  kInkWaterName = 12,
};

using Palette = std::vector<std::uint32_t>;  // 0xRRGGBB

Palette FlatPalette();    // 16 entries
Palette ReliefPalette();  // 256 entries: 128 of the sea, 112 of the land, then the inks

// Where the inks above kInkLand stand in the palette of the relief tiles.
constexpr int kReliefLand = 128;
constexpr int kReliefInks = 240;

// Name of the tile whose south-west corner lies at the given kilometres: 58000400.BMP. Negative
// values carry their thousands as a letter from "@" on: -1000 is "A000".
std::string TileName(int north_km, int east_km);

// Writes pixels (top row first, one index each) with 4 bits where the palette has 16 entries, else
// 8. The file stands under a longer name until it is whole.
bool WriteTile(Files& files, const std::string& path, const std::vector<std::uint8_t>& pixels,
               const Palette& palette);

}  // namespace zepril
