// Bitmap files for tests and benchmarks, byte by byte.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace zepril {

struct BmpMaker {
  int Width = 1;
  int Height = 1;  // below 0: rows from the top
  int Bits = 8;
  std::vector<std::uint32_t> Palette;  // 0xRRGGBB
  std::string Rows;                    // as in the file, padding included

  std::string Bytes() const {
    std::string file = "BM";
    const std::size_t data_at = 54 + Palette.size() * 4;
    Put(file, data_at + Rows.size(), 4);
    Put(file, 0, 4);
    Put(file, data_at, 4);
    Put(file, 40, 4);
    Put(file, static_cast<std::uint32_t>(Width), 4);
    Put(file, static_cast<std::uint32_t>(Height), 4);
    Put(file, 1, 2);
    Put(file, static_cast<std::uint32_t>(Bits), 2);
    Put(file, 0, 4);
    Put(file, Rows.size(), 4);
    Put(file, 0, 4);
    Put(file, 0, 4);
    Put(file, Palette.size(), 4);
    Put(file, 0, 4);
    for (std::uint32_t colour : Palette)
      Put(file, colour, 4);
    return file + Rows;
  }

  static void Put(std::string& file, std::uint64_t value, int bytes) {
    for (int i = 0; i < bytes; ++i)
      file += static_cast<char>(value >> (8 * i) & 0xFF);
  }
};

inline std::vector<std::uint32_t> TestPalette(std::size_t entries) {
  std::vector<std::uint32_t> palette;
  for (std::uint32_t i = 0; i < entries; ++i)
    palette.push_back(i * 0x10305u & 0xFFFFFFu);
  return palette;
}

// A tile of 16 inks, 500118 bytes; every pixel has index `ink`, or a pattern when it is below 0.
inline std::string FourBitTile(int ink = -1) {
  std::string rows(500000, '\0');
  for (std::size_t i = 0; i < rows.size(); ++i) {
    rows[i] = ink < 0 ? static_cast<char>(i % 251) : static_cast<char>(ink * 17);
  }
  return BmpMaker{1000, 1000, 4, TestPalette(16), rows}.Bytes();
}

// A tile of 256 colours, 1001078 bytes.
inline std::string EightBitTile() {
  std::string rows(1000000, '\0');
  for (std::size_t i = 0; i < rows.size(); ++i)
    rows[i] = static_cast<char>(i % 253);
  return BmpMaker{1000, 1000, 8, TestPalette(256), rows}.Bytes();
}

}  // namespace zepril
