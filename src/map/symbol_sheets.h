// The bitmap symbols: two sheets in the program folder, ZEPRSYM0.BMP for the primary table and
// ZEPRSYM1.BMP for the alternate one, 337 x 127 pixels: 16 columns and 6 rows of cells of 21 pixels
// that share their border lines. 22 x 22 pixels are copied, background and all.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "map/tile_cache.h"
#include "platform/drawing_surface.h"
#include "platform/files.h"

namespace zepril {

inline constexpr int kSymbolCellPixels = 22;

// Index of a symbol's row in the symbol table, 1 to 194. Any pair of characters gives one: what
// lies outside the table is 194.
int SymbolIndex(char table, char code);
// The same for the symbol field of a record; one that is shorter than two characters is 194.
int SymbolIndexOf(std::string_view symbol);

// Where the cell of a symbol lies.
struct SymbolCell {
  int Sheet = 0;  // digit in the sheet's name
  int X = 0;      // 0 to 315
  int Y = 0;      // 0 to 105
};
SymbolCell CellOfSymbol(int index);

// The sheets in memory; each is read once and again only when its file changes.
class SymbolSheets {
 public:
  // `program_folder` is looked at whenever a sheet is read: it may be set after construction.
  SymbolSheets(const Files& files, const std::string& program_folder);

  // To be called at the start of every redraw.
  void BeginRedraw();
  // Copies the cell with its top left at (x, y). A sheet that is missing or too small draws
  // nothing.
  void DrawSymbol(DrawingSurface& surface, int index, int x, int y);

 private:
  struct Sheet {
    bool Checked = false;  // in this redraw
    std::optional<FileStamp> Stamp;
    int Width = 0;
    int Height = 0;
    std::vector<std::uint32_t> Pixels;
  };
  const Sheet& Loaded(int number);

  const Files& files_;
  const std::string& program_folder_;
  std::array<Sheet, 2> sheets_;
};

}  // namespace zepril
