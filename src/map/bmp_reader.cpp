// Checks the headers against the bytes that are there, unpacks rows, and stretches pixels.
#include "map/bmp_reader.h"

#include <algorithm>
#include <array>

namespace zepril {
namespace {

constexpr std::size_t kFileHeader = 14;
constexpr std::size_t kOldInfoHeader = 12;
constexpr std::size_t kInfoHeader = 40;
constexpr std::uint32_t kOpaque = 0xFF000000u;
constexpr std::uint32_t kBitFields = 3;

// Little-endian numbers of the file; the caller has tested the length.
std::uint32_t Byte(std::string_view bytes, std::size_t at) {
  return static_cast<unsigned char>(bytes[at]);
}
std::uint32_t Word16(std::string_view bytes, std::size_t at) {
  return Byte(bytes, at) | Byte(bytes, at + 1) << 8;
}
std::uint32_t Word32(std::string_view bytes, std::size_t at) {
  return Word16(bytes, at) | Word16(bytes, at + 2) << 16;
}

struct Layout {
  int Width = 0;
  int Height = 0;
  bool FromTop = false;
  std::uint32_t Bits = 0;
  std::size_t PixelsAt = 0;
  std::size_t RowBytes = 0;
  std::size_t PaletteAt = 0;
  std::size_t PaletteEntries = 0;
  std::size_t PaletteEntryBytes = 4;
};

bool SizesAreSensible(std::int64_t width, std::int64_t height) {
  constexpr std::int64_t kLongestSide = 1'000'000;
  return width >= 1 && height >= 1 && width <= kLongestSide && height <= kLongestSide &&
         width * height <= kMostBitmapPixels;
}

// Colours stand as blue, green, red, spare: the only order of bit fields that is drawn.
bool PlainBitFields(std::string_view bytes) {
  constexpr std::size_t kMasksAt = kFileHeader + kInfoHeader;
  return bytes.size() >= kMasksAt + 12 && Word32(bytes, kMasksAt) == 0x00FF0000u &&
         Word32(bytes, kMasksAt + 4) == 0x0000FF00u && Word32(bytes, kMasksAt + 8) == 0x000000FFu;
}

std::optional<Layout> ReadHeaders(std::string_view bytes) {
  if (bytes.size() < kFileHeader + kOldInfoHeader || bytes.size() > kLongestBitmapFile) return {};
  if (bytes[0] != 'B' || bytes[1] != 'M') return {};
  Layout layout;
  layout.PixelsAt = Word32(bytes, 10);
  const std::size_t header = Word32(bytes, 14);
  std::int64_t width = 0;
  std::int64_t height = 0;
  std::uint32_t compression = 0;
  std::size_t colours_used = 0;
  if (header == kOldInfoHeader) {
    width = Word16(bytes, 18);
    height = Word16(bytes, 20);
    layout.Bits = Word16(bytes, 24);
    layout.PaletteEntryBytes = 3;
  } else {
    if (header < kInfoHeader || bytes.size() < kFileHeader + kInfoHeader) return {};
    width = static_cast<std::int32_t>(Word32(bytes, 18));
    height = static_cast<std::int32_t>(Word32(bytes, 22));
    layout.Bits = Word16(bytes, 28);
    compression = Word32(bytes, 30);
    colours_used = Word32(bytes, 46);
    if (height < 0) {
      layout.FromTop = true;
      height = -height;
    }
  }
  const bool plain =
      compression == 0 || (compression == kBitFields && layout.Bits == 32 && PlainBitFields(bytes));
  if (!plain || !SizesAreSensible(width, height)) return {};
  layout.Width = static_cast<int>(width);
  layout.Height = static_cast<int>(height);
  layout.PaletteAt = kFileHeader + std::min(header, bytes.size());
  if (layout.Bits <= 8) {
    const std::size_t most = std::size_t{1} << layout.Bits;
    layout.PaletteEntries = colours_used == 0 ? most : std::min(colours_used, most);
  }
  layout.RowBytes = (static_cast<std::size_t>(width) * layout.Bits + 31) / 32 * 4;
  return layout;
}

bool PixelsAreThere(const Layout& layout, std::string_view bytes) {
  const std::size_t needed = layout.RowBytes * static_cast<std::size_t>(layout.Height);
  return layout.PixelsAt >= kFileHeader && layout.PixelsAt <= bytes.size() &&
         bytes.size() - layout.PixelsAt >= needed;
}

// Entries that the file does not hold are black.
std::vector<std::uint32_t> ReadPalette(const Layout& layout, std::string_view bytes) {
  std::vector<std::uint32_t> palette(std::size_t{1} << layout.Bits, kOpaque);
  for (std::size_t i = 0; i < layout.PaletteEntries; ++i) {
    const std::size_t at = layout.PaletteAt + i * layout.PaletteEntryBytes;
    if (at + 3 > bytes.size()) break;
    palette[i] = kOpaque | Byte(bytes, at + 2) << 16 | Byte(bytes, at + 1) << 8 | Byte(bytes, at);
  }
  return palette;
}

void UnpackIndices(const Layout& layout, std::string_view row, std::uint8_t* out) {
  const auto width = static_cast<std::size_t>(layout.Width);
  const std::size_t per_byte = 8 / layout.Bits;
  const auto mask = static_cast<std::uint8_t>((1u << layout.Bits) - 1u);
  for (std::size_t x = 0; x < width; ++x) {
    const auto packed = static_cast<unsigned char>(row[x / per_byte]);
    const std::size_t shift = 8 - layout.Bits * (x % per_byte + 1);
    out[x] = static_cast<std::uint8_t>(packed >> shift) & mask;
  }
}

// The two kinds of nearly all tiles, without arithmetic for each pixel.
void UnpackNibbles(const Layout& layout, std::string_view row, std::uint8_t* out) {
  const auto width = static_cast<std::size_t>(layout.Width);
  for (std::size_t x = 0; x + 1 < width; x += 2) {
    const auto packed = static_cast<unsigned char>(row[x / 2]);
    out[x] = packed >> 4;
    out[x + 1] = packed & 15;
  }
  if (width % 2 != 0) out[width - 1] = static_cast<unsigned char>(row[width / 2]) >> 4;
}

void UnpackColours(const Layout& layout, std::string_view row, std::uint32_t* out) {
  const std::size_t step = layout.Bits / 8;
  for (std::size_t x = 0; x < static_cast<std::size_t>(layout.Width); ++x) {
    const std::size_t at = x * step;
    out[x] = kOpaque | Byte(row, at + 2) << 16 | Byte(row, at + 1) << 8 | Byte(row, at);
  }
}

void UnpackRow(const Layout& layout, std::string_view row, std::size_t first, Bitmap& bitmap) {
  if (layout.Bits > 8) {
    UnpackColours(layout, row, bitmap.Pixels.data() + first);
  } else if (layout.Bits == 8) {
    std::copy_n(row.begin(), layout.Width, bitmap.Indexed.data() + first);
  } else if (layout.Bits == 4) {
    UnpackNibbles(layout, row, bitmap.Indexed.data() + first);
  } else {
    UnpackIndices(layout, row, bitmap.Indexed.data() + first);
  }
}

}  // namespace

std::optional<Bitmap> ReadBmp(std::string_view bytes) {
  const auto layout = ReadHeaders(bytes);
  if (!layout) return std::nullopt;
  constexpr std::array<std::uint32_t, 5> kDepths{1, 4, 8, 24, 32};
  if (std::find(kDepths.begin(), kDepths.end(), layout->Bits) == kDepths.end()) return std::nullopt;
  if (!PixelsAreThere(*layout, bytes)) return std::nullopt;
  Bitmap bitmap;
  bitmap.Width = layout->Width;
  bitmap.Height = layout->Height;
  const auto width = static_cast<std::size_t>(layout->Width);
  const auto height = static_cast<std::size_t>(layout->Height);
  if (layout->Bits <= 8) {
    bitmap.Palette = ReadPalette(*layout, bytes);
    bitmap.Indexed.resize(width * height);
  } else {
    bitmap.Pixels.resize(width * height);
  }
  for (std::size_t y = 0; y < height; ++y) {
    const std::size_t stored = layout->FromTop ? y : height - 1 - y;
    UnpackRow(*layout, bytes.substr(layout->PixelsAt + stored * layout->RowBytes, layout->RowBytes),
              y * width, bitmap);
  }
  return bitmap;
}

std::vector<std::uint32_t> StretchedPixels(const Bitmap& bitmap,
                                           const std::vector<std::uint32_t>& palette, int width,
                                           int height) {
  if (width < 1 || height < 1) return {};
  std::array<std::uint32_t, 256> colours;
  colours.fill(kOpaque);
  std::copy_n(palette.begin(), std::min(palette.size(), colours.size()), colours.begin());
  const auto to_width = static_cast<std::size_t>(width);
  const auto from_width = static_cast<std::size_t>(bitmap.Width);
  std::vector<std::size_t> column(to_width);
  for (std::size_t x = 0; x < to_width; ++x)
    column[x] = x * from_width / to_width;
  std::vector<std::uint32_t> out(to_width * static_cast<std::size_t>(height));
  for (int y = 0; y < height; ++y) {
    const auto from =
        static_cast<std::size_t>(static_cast<std::int64_t>(y) * bitmap.Height / height);
    std::uint32_t* row = out.data() + static_cast<std::size_t>(y) * to_width;
    if (bitmap.HasPalette()) {
      const std::uint8_t* source = bitmap.Indexed.data() + from * from_width;
      for (std::size_t x = 0; x < to_width; ++x)
        row[x] = colours[source[column[x]]];
    } else {
      const std::uint32_t* source = bitmap.Pixels.data() + from * from_width;
      for (std::size_t x = 0; x < to_width; ++x)
        row[x] = source[column[x]];
    }
  }
  return out;
}

}  // namespace zepril
