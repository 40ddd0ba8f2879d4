// Both palettes, and a tile as a bitmap, written under another name until it is whole.
#include "sample_maps/tile_file.h"

#include <cmath>
#include <cstdlib>

#include "core/text_fields.h"

namespace zepril {
namespace {

std::string NameField(int km) {
  const int size = std::abs(km);
  std::string digits = ZeroPadded(size % 10000, 4);
  if (km < 0) digits[0] = static_cast<char>(size / 1000 + 64);
  return digits;
}

void AddLittle(std::string& text, std::uint32_t value, int bytes) {
  for (int i = 0; i < bytes; ++i)
    text += static_cast<char>(value >> (8 * i) & 255);
}

std::string Head(const Palette& palette, std::uint32_t pixel_bytes) {
  const auto entries = static_cast<std::uint32_t>(palette.size());
  const std::uint32_t start = 54 + 4 * entries;
  std::string text = "BM";
  AddLittle(text, start + pixel_bytes, 4);
  AddLittle(text, 0, 4);
  AddLittle(text, start, 4);
  AddLittle(text, 40, 4);
  AddLittle(text, kSampleTilePixels, 4);
  AddLittle(text, kSampleTilePixels, 4);
  AddLittle(text, 1, 2);
  AddLittle(text, entries == 16 ? 4 : 8, 2);
  AddLittle(text, 0, 4);
  AddLittle(text, pixel_bytes, 4);
  AddLittle(text, 2835, 4);
  AddLittle(text, 2835, 4);
  AddLittle(text, entries, 4);
  AddLittle(text, 0, 4);
  for (const std::uint32_t colour : palette)
    AddLittle(text, colour, 4);  // blue, green, red, 0
  return text;
}

// The inks of lines and names, from the coast on.
constexpr std::uint32_t kLineColours[] = {0x6C8796, 0xCDC4B0, 0x9C8A74, 0x3C3A36, 0xF3F1EA,
                                          0xC9705A, 0x2B2B29, 0x54514B, 0x5F8199};

std::uint32_t Mix(std::uint32_t a, std::uint32_t b, double t) {
  std::uint32_t mixed = 0;
  for (const int shift : {16, 8, 0}) {
    const double from = a >> shift & 255, to = b >> shift & 255;
    mixed |= static_cast<std::uint32_t>(std::lround(from + (to - from) * t)) << shift;
  }
  return mixed;
}

}  // namespace

Palette FlatPalette() {
  Palette palette = {0xA5BECC, 0xAFC6D2, 0xBBCFD9, 0xDCD9CA};
  for (const std::uint32_t colour : kLineColours)
    palette.push_back(colour);
  while (palette.size() < 16)
    palette.push_back(0x808080);
  return palette;
}

Palette ReliefPalette() {
  Palette palette;
  for (int i = 0; i < kReliefLand; ++i) {
    const double depth = i / (kReliefLand - 1.0);  // 0 at the coast
    palette.push_back(Mix(0xC0D5DD, 0x7F9FB4, depth));
  }
  for (int i = 0; i < kReliefInks - kReliefLand; ++i) {
    const double light = i / (kReliefInks - kReliefLand - 1.0);
    palette.push_back(light < 0.5 ? Mix(0xA8AC94, 0xD3D2BE, light * 2)
                                  : Mix(0xD3D2BE, 0xEDEADB, light * 2 - 1));
  }
  for (const std::uint32_t colour : kLineColours)
    palette.push_back(colour);
  while (palette.size() < 256)
    palette.push_back(0x808080);
  return palette;
}

std::string TileName(int north_km, int east_km) {
  return NameField(north_km) + NameField(east_km) + ".BMP";
}

bool WriteTile(Files& files, const std::string& path, const std::vector<std::uint8_t>& pixels,
               const Palette& palette) {
  const bool packed = palette.size() == 16;
  const int line = packed ? kSampleTilePixels / 2 : kSampleTilePixels;
  std::string text = Head(palette, static_cast<std::uint32_t>(line * kSampleTilePixels));
  text.reserve(text.size() + static_cast<std::size_t>(line * kSampleTilePixels));
  for (int y = kSampleTilePixels - 1; y >= 0; --y) {
    const std::uint8_t* row = pixels.data() + static_cast<std::ptrdiff_t>(y) * kSampleTilePixels;
    for (int x = 0; x < kSampleTilePixels; x += packed ? 2 : 1) {
      text += static_cast<char>(packed ? row[x] << 4 | row[x + 1] : row[x]);
    }
  }
  // A name that no scan for tiles takes up, whatever becomes of the work.
  const std::string part = path + ".unfinished";
  if (files.Write(part, text)) {
    files.Remove(path);
    if (files.Rename(part, path)) return true;
  }
  files.Remove(part);
  return false;
}

}  // namespace zepril
