// Loads a sheet when its file has changed, and copies cells out of it.
#include "map/symbol_sheets.h"

#include <algorithm>

#include "core/symbol_table.h"
#include "core/text_fields.h"
#include "map/bmp_reader.h"

namespace zepril {
namespace {

constexpr int kCellPitch = 21;
constexpr int kColumns = 16;
constexpr int kLastColumnX = 315;
constexpr int kLastRowY = 105;

}  // namespace

int SymbolIndex(char table, char code) {
  const int index = RawSymbolIndex(table, code);
  return index < 1 || index > SymbolTable::kLastIndex ? SymbolTable::kLastIndex : index;
}

int SymbolIndexOf(std::string_view symbol) {
  return symbol.size() < 2 ? SymbolTable::kLastIndex : SymbolIndex(symbol[0], symbol[1]);
}

SymbolCell CellOfSymbol(int index) {
  // Kept: column and row are counted in two ways that part at the hundreds, and the clamps hold
  // them.
  const int x = (index % 100 - 1) % kColumns * kCellPitch;
  const int y = (index - 1) % 100 / kColumns * kCellPitch;
  return {index / 100, std::clamp(x, 0, kLastColumnX), std::clamp(y, 0, kLastRowY)};
}

SymbolSheets::SymbolSheets(const Files& files, const std::string& program_folder)
    : files_(files), program_folder_(program_folder) {}

void SymbolSheets::BeginRedraw() {
  for (Sheet& sheet : sheets_)
    sheet.Checked = false;
}

const SymbolSheets::Sheet& SymbolSheets::Loaded(int number) {
  Sheet& sheet = sheets_[static_cast<std::size_t>(number)];
  if (sheet.Checked) return sheet;
  sheet.Checked = true;
  const std::string path = program_folder_ + "\\ZEPRSYM" + WholeNumber(number) + ".BMP";
  const auto stamp = files_.Stamp(path);
  if (stamp && stamp == sheet.Stamp) return sheet;
  sheet.Stamp = stamp;
  sheet.Pixels.clear();
  if (!stamp) return sheet;
  const auto bytes = files_.ReadAll(path, kLongestBitmapFile);
  const auto bitmap = bytes ? ReadBmp(*bytes) : std::nullopt;
  if (!bitmap) return sheet;
  sheet.Width = bitmap->Width;
  sheet.Height = bitmap->Height;
  sheet.Pixels = StretchedPixels(*bitmap, bitmap->Palette, bitmap->Width, bitmap->Height);
  return sheet;
}

void SymbolSheets::DrawSymbol(DrawingSurface& surface, int index, int x, int y) {
  const SymbolCell cell = CellOfSymbol(index);
  if (cell.Sheet < 0 || cell.Sheet >= static_cast<int>(sheets_.size())) return;
  const Sheet& sheet = Loaded(cell.Sheet);
  if (sheet.Pixels.empty() || cell.X + kSymbolCellPixels > sheet.Width ||
      cell.Y + kSymbolCellPixels > sheet.Height) {
    return;
  }
  surface.Image({x, y, kSymbolCellPixels, kSymbolCellPixels},
                {sheet.Width, sheet.Height, sheet.Pixels},
                {cell.X, cell.Y, kSymbolCellPixels, kSymbolCellPixels});
}

}  // namespace zepril
