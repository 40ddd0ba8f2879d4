// The symbol sheets as files: make_symbols <drawings> <small letters> <glyph pictures> <target dir>
//
// Writes ZEPRSYM0.BMP (table "/") and ZEPRSYM1.BMP (table "\"): 16 x 6 cells of 21 pixels and the
// closing edge, 337 x 127 pixels of 24 bits. Codes without a drawing are listed on standard output.

#include "make_symbols/drawings.h"

#include <cstdio>
#include <fstream>
#include <iterator>

namespace zepril {
namespace {

constexpr int kCell = 21;
constexpr int kColumns = 16;
constexpr int kRows = 6;
constexpr int kWidth = kColumns * kCell + 1;
constexpr int kHeight = kRows * kCell + 1;
constexpr Colour kEdge{0x54, 0x5B, 0x60};

std::string ReadFile(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

bool WriteFile(const std::string& path, const std::string& bytes) {
  std::ofstream file(path, std::ios::binary);
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  return file.good();
}

void AddLittle(std::string& text, std::uint32_t value, int bytes) {
  for (int i = 0; i < bytes; ++i)
    text += static_cast<char>(value >> (8 * i) & 255);
}

class Sheet {
 public:
  Sheet() : pixels_(static_cast<std::size_t>(kWidth * kHeight), kEdge) {}

  // Inside of the cell's edge, which it shares with its neighbours.
  void Place(int column, int row, const Painter& painter) {
    for (int y = 1; y < kCell; ++y) {
      for (int x = 1; x < kCell; ++x) {
        At(column * kCell + x, row * kCell + y) = painter.Pixel(x, y);
      }
    }
  }

  std::string Bmp() {
    const int line = (kWidth * 3 + 3) / 4 * 4;
    std::string text = "BM";
    AddLittle(text, static_cast<std::uint32_t>(54 + line * kHeight), 4);
    AddLittle(text, 0, 4);
    AddLittle(text, 54, 4);
    AddLittle(text, 40, 4);
    AddLittle(text, kWidth, 4);
    AddLittle(text, kHeight, 4);
    AddLittle(text, 1, 2);
    AddLittle(text, 24, 2);
    AddLittle(text, 0, 4);
    AddLittle(text, static_cast<std::uint32_t>(line * kHeight), 4);
    AddLittle(text, 2835, 4);
    AddLittle(text, 2835, 4);
    AddLittle(text, 0, 4);
    AddLittle(text, 0, 4);
    for (int y = kHeight - 1; y >= 0; --y) {
      for (int x = 0; x < kWidth; ++x) {
        const Colour colour = At(x, y);
        for (const std::uint8_t part : {colour.blue, colour.green, colour.red}) {
          text += static_cast<char>(part);
        }
      }
      text.append(static_cast<std::size_t>(line - kWidth * 3), '\0');
    }
    return text;
  }

 private:
  Colour& At(int x, int y) { return pixels_[static_cast<std::size_t>(y) * kWidth + x]; }

  std::vector<Colour> pixels_;
};

std::string DrawSheet(const SymbolDrawings& drawings, char table) {
  Sheet sheet;
  for (int index = 0; index < kColumns * kRows; ++index) {
    Painter painter;
    if (index < 94) {
      const char code = static_cast<char>(index + 33);
      painter = drawings.Paint(table, code);
      if (!drawings.Has(table, code)) std::fputs((std::string{table, code} + " ").c_str(), stdout);
    } else {
      painter.Fill({0xF4, 0xF1, 0xE7});
    }
    sheet.Place(index % kColumns, index / kColumns, painter);
  }
  std::fputs("\n", stdout);
  return sheet.Bmp();
}

int Run(const std::vector<std::string>& words) {
  if (words.size() != 4) {
    std::fputs("usage: make_symbols <drawings> <small letters> <glyph pictures> <target dir>\n",
               stderr);
    return 2;
  }
  const auto small = ReadPixelGlyphs(ReadFile(words[1]));
  const auto large = ReadPixelGlyphs(ReadFile(words[2]));
  if (!small || !large) {
    std::fputs("the letters cannot be read\n", stderr);
    return 1;
  }
  std::string fault;
  const auto drawings = SymbolDrawings::Read(ReadFile(words[0]), {*small, *large}, fault);
  if (!drawings) {
    std::fputs(("not understood: " + fault + "\n").c_str(), stderr);
    return 1;
  }
  std::fputs("without a drawing: ", stdout);
  const bool good = WriteFile(words[3] + "/ZEPRSYM0.BMP", DrawSheet(*drawings, '/')) &&
                    WriteFile(words[3] + "/ZEPRSYM1.BMP", DrawSheet(*drawings, '\\'));
  return good ? 0 : 1;
}

}  // namespace
}  // namespace zepril

int main(int argc, char** argv) {
  return zepril::Run({argv + 1, argv + argc});
}
