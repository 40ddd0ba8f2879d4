// Map tiles come from anywhere: whatever the bytes, a bitmap that is accepted has as many pixels as
// its size says, and it can be shrunk and stretched.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "map/bmp_reader.h"

namespace {

void Require(bool holds) {
  if (!holds) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const auto bitmap = zepril::ReadBmp({reinterpret_cast<const char*>(data), size});
  if (!bitmap) return 0;
  Require(bitmap->Width >= 1 && bitmap->Height >= 1);
  const std::int64_t pixels = std::int64_t{bitmap->Width} * bitmap->Height;
  Require(pixels <= zepril::kMostBitmapPixels);
  const auto count = static_cast<std::size_t>(pixels);
  Require(bitmap->HasPalette() ? bitmap->Indexed.size() == count && bitmap->Pixels.empty()
                               : bitmap->Pixels.size() == count);
  // A one-bit bitmap takes at least an eighth of a byte a pixel: nothing is made of nothing.
  Require(count <= size * 8);
  for (std::uint8_t index : bitmap->Indexed)
    Require(index < bitmap->Palette.size());
  for (int side : {1, 7, 125}) {
    const auto drawn = zepril::StretchedPixels(*bitmap, bitmap->Palette, side, side);
    Require(drawn.size() == static_cast<std::size_t>(side) * static_cast<std::size_t>(side));
    for (std::uint32_t pixel : drawn)
      Require(pixel >> 24 == 0xFF);
  }
  return 0;
}
