// The drawings of the symbols, read from their text file and painted.
#pragma once

#include "make_symbols/painter.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace zepril {

// The letters a drawing may print.
struct SymbolLetters {
  PixelGlyphs small;  // six rows from the cell's top
  PixelGlyphs large;  // the fixed-width face
};

class SymbolDrawings {
 public:
  // Reads the form told at the head of tools/make_symbols/symbols.txt. Nothing where a line is not
  // understood; `fault` then says which.
  static std::optional<SymbolDrawings> Read(const std::string& text, SymbolLetters letters,
                                            std::string& fault);

  // Whether there is a drawing for table ('/' or '\') and code (33 to 126).
  bool Has(char table, char code) const;

  // The cell of a symbol. One without a drawing shows its code in a faint box.
  Painter Paint(char table, char code) const;

 private:
  using Words = std::vector<std::string>;

  bool ReadLine(const Words& words, std::vector<Words>*& target);
  bool ReadColour(const Words& words);
  bool Draw(const Words& words, Painter& painter, double dx, double dy) const;
  bool DrawShape(const Words& words, Painter& painter, double dx, double dy) const;
  bool DrawText(const Words& words, Painter& painter) const;
  bool DrawPiece(const Words& words, Painter& painter, double dx, double dy) const;
  void PaintUndrawn(char code, Painter& painter) const;
  bool TryAll(std::string& fault) const;

  SymbolLetters letters_;
  std::map<std::string, Colour> colours_;
  std::map<std::string, std::vector<Words>> pieces_;
  std::map<std::string, std::vector<Words>> symbols_;
};

}  // namespace zepril
