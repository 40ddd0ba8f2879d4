// Brightens or dims a palette, and paints the chosen ink yellow.
#include "map/tile_palette.h"

#include <algorithm>

#include "core/text_fields.h"

namespace zepril {
namespace {

constexpr std::uint32_t kBrightYellow = 0xFFFFFF00u;

}  // namespace

std::uint8_t BrightnessOf(std::uint8_t value, int step) {
  return static_cast<std::uint8_t>(std::clamp<std::int64_t>(ToWhole((step - 0.4) * value), 0, 255));
}

std::optional<int> ChosenInk(const std::string& selected_ink) {
  if (Trim(selected_ink).empty()) return std::nullopt;
  const auto number = WholeVal(selected_ink, 0, kInks - 1);
  return number ? std::optional<int>(*number) : std::nullopt;
}

PaletteWork WorkForTile(std::int64_t file_length, int brightness_step,
                        const std::string& selected_ink) {
  PaletteWork work;
  if (file_length == kSixteenInkTile || file_length == kPaletteTile) {
    work.BrightnessStep = brightness_step;
  }
  if (file_length == kSixteenInkTile) work.Ink = ChosenInk(selected_ink);
  return work;
}

std::vector<std::uint32_t> WorkedPalette(std::vector<std::uint32_t> palette,
                                         const PaletteWork& work) {
  if (work.BrightnessStep > 0) {
    for (std::uint32_t& entry : palette) {
      const auto part = [&](int shift) {
        const auto value = static_cast<std::uint8_t>(entry >> shift);
        return static_cast<std::uint32_t>(BrightnessOf(value, work.BrightnessStep)) << shift;
      };
      entry = 0xFF000000u | part(16) | part(8) | part(0);
    }
  }
  if (work.Ink && static_cast<std::size_t>(*work.Ink) < palette.size()) {
    palette[static_cast<std::size_t>(*work.Ink)] = kBrightYellow;
  }
  return palette;
}

}  // namespace zepril
