// Paints the symbol's cell and the overlay over it.
#include "transmit/symbol_preview.h"

#include "transmit/position_report.h"

namespace zepril {
namespace {

constexpr Colour kPaper = 0xC0C0C0;
// Where a station's overlay lies in its cell on the map.
constexpr int kOverlayX = 7;
constexpr int kOverlayY = 3;

}  // namespace

void SymbolPreview::Show(int row, const std::string& overlay) {
  sheets_.BeginRedraw();
  surface_.Clear(kPaper);
  // A row outside the table is shown as others will show it.
  const bool in_table = row >= 1 && row <= SymbolTable::kLastIndex;
  sheets_.DrawSymbol(surface_, in_table ? row : SymbolTable::kLastIndex, 0, 0);
  if (TakesOverlay(symbols_, row) && !overlay.empty()) {
    surface_.Text(kOverlayX, kOverlayY, overlay.substr(0, 1), FontFace::Text, kBlack);
  }
  ++picture_.Revision;
}

}  // namespace zepril
