// The symbol of a table row as the map shows it, painted for a set-up panel.
#pragma once

#include <string>

#include "core/controls.h"
#include "core/symbol_table.h"
#include "map/symbol_sheets.h"
#include "platform/drawing_surface.h"

namespace zepril {

class SymbolPreview {
 public:
  // `surface` is one cell large; `picture` shows it.
  SymbolPreview(DrawingSurface& surface, PictureBox& picture, SymbolSheets& sheets,
                const SymbolTable& symbols)
      : surface_(surface), picture_(picture), sheets_(sheets), symbols_(symbols) {}

  // `overlay`: shown on a row that takes one.
  void Show(int row, const std::string& overlay);

 private:
  DrawingSurface& surface_;
  PictureBox& picture_;
  SymbolSheets& sheets_;
  const SymbolTable& symbols_;
};

}  // namespace zepril
