#include "transmit/symbol_preview.h"

#include "core/text_fields.h"

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
  sheets_.DrawSymbol(surface_, row, 0, 0);
  const bool takes_overlay = InStr(Upper(symbols_.Row(row)), "NO.") > 0;
  if (takes_overlay && !overlay.empty()) {
    surface_.Text(kOverlayX, kOverlayY, overlay.substr(0, 1), FontFace::Text, kBlack);
  }
  ++picture_.Revision;
}

}  // namespace zepril
